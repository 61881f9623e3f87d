#include "bench/Goods.h"

#include <array>

#include "base/Failure.h"

namespace goods {
namespace {

constexpr int kRareEvery = 100;
constexpr int kRareFrom = 37;
constexpr int kRareWords = 997;  // a shop of a million has ten goods for each

constexpr std::array kBrands = {"NFSQ", "KSF", "WHH", "YL", "MN", "TY", "BS", "LJ"};
constexpr std::array kKinds = {"矿泉水", "绿茶", "酸牛奶", "方便面", "洗衣粉", "酱油", "饼干"};
constexpr std::array kPacks = {"550ml", "100g", "1.5L", "200g×12", "3kg"};

std::string padded(int number, int digits) {
  const std::string text = std::to_string(number);
  return std::string(static_cast<std::size_t>(digits) - text.size(), '0') + text;
}

template <std::size_t count>
const char* oneOf(const std::array<const char*, count>& choices, int item) {
  return choices[static_cast<std::size_t>(item) % count];
}

// Four characters of thirty-six count 1,679,616; the factor, which has no divisor in common with
// them, makes neighbours look different.
std::string ownCode(int item) {
  constexpr std::int64_t kCodes = std::int64_t{36} * 36 * 36 * 36;
  std::int64_t rest = item * std::int64_t{1'000'003} % kCodes;
  std::string code(4, '0');
  for (char& character : code) {
    character = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ"[rest % 36];
    rest /= 36;
  }
  return code;
}

// From U+4E00 on, where every character takes three bytes of UTF-8.
std::string chineseCharacter(int number) {
  const int code = 0x4E00 + number;
  return {static_cast<char>(0xE0 | (code >> 12)), static_cast<char>(0x80 | ((code >> 6) & 0x3F)),
          static_cast<char>(0x80 | (code & 0x3F))};
}

std::string rareWord(int item, int characters) {
  const int word = item / kRareEvery % kRareWords;
  std::string text;
  for (int place = 0; place < characters; ++place) {
    text += chineseCharacter(word + place * kRareWords);
  }
  return text;
}

}  // namespace

std::string barcode(int item) {
  return "69" + padded(item, 11);
}
std::string itemCode(int item) {
  return "G" + padded(item, 8);
}
std::string name(int item) {
  return std::string(oneOf(kKinds, item)) + " " + oneOf(kPacks, item);
}

std::string specification(int item, int shopGoods) {
  const int looseEvery = shopGoods / kLooseGoods;
  std::string beginning;
  if (looseEvery <= 1 || item % looseEvery == 0) beginning = kLoose;
  if (item % kRareEvery == kRareFrom) beginning += rareWord(item, 3);
  return beginning + oneOf(kBrands, item) + ownCode(item);
}

std::string fragment(int item, int characters) {
  ensure(characters >= 2 && characters <= 5, "fragments have two to five characters");
  if (characters <= 3) return rareWord(item, characters);
  const std::string brand = oneOf(kBrands, item);
  return (characters == 5 ? brand.substr(brand.size() - 1) : "") + ownCode(item);
}

std::vector<int> itemsWithFragment(int item, int characters, int shopGoods) {
  if (characters > 3) return {item};
  constexpr int kApart = kRareEvery * kRareWords;
  std::vector<int> items;
  for (int each = item % kApart; each < shopGoods; each += kApart) items.push_back(each);
  return items;
}

int itemWithRareWord(int n) {
  return n * kRareEvery + kRareFrom;
}

}  // namespace goods
