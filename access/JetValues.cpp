#include "access/JetValues.h"

#include <charconv>
#include <cmath>
#include <cstddef>

namespace {

constexpr char32_t kBroken = 0xFFFD;

void append(std::string& text, char32_t code) {
  const auto tail = [&text, code](int shift) {
    text += static_cast<char>(0x80 | (code >> shift & 0x3F));
  };
  if (code < 0x80) {
    text += static_cast<char>(code);
  } else if (code < 0x800) {
    text += static_cast<char>(0xC0 | code >> 6);
    tail(0);
  } else if (code < 0x10000) {
    text += static_cast<char>(0xE0 | code >> 12);
    tail(6);
    tail(0);
  } else {
    text += static_cast<char>(0xF0 | code >> 18);
    tail(12);
    tail(6);
    tail(0);
  }
}

// Characters below U+0100 are one byte; a zero byte changes to two bytes a character and back.
std::u16string uncompressed(std::string_view bytes) {
  std::u16string units;
  bool isShort = true;
  for (std::size_t at = 0; at < bytes.size();) {
    const auto low = static_cast<unsigned char>(bytes[at]);
    if (low == 0) {
      isShort = !isShort;
      ++at;
    } else if (isShort || at + 1 == bytes.size()) {
      units += low;
      ++at;
    } else {
      const auto high = static_cast<unsigned char>(bytes[at + 1]);
      units += static_cast<char16_t>(high << 8 | low);
      at += 2;
    }
  }
  return units;
}

std::u16string plain(std::string_view bytes) {
  std::u16string units;
  for (std::size_t at = 0; at + 1 < bytes.size(); at += 2) {
    const auto low = static_cast<unsigned char>(bytes[at]);
    const auto high = static_cast<unsigned char>(bytes[at + 1]);
    units += static_cast<char16_t>(high << 8 | low);
  }
  return units;
}

bool isHigh(char16_t unit) {
  return unit >= 0xD800 && unit < 0xDC00;
}
bool isLow(char16_t unit) {
  return unit >= 0xDC00 && unit < 0xE000;
}

}  // namespace

std::string jet4Text(std::string_view bytes) {
  const std::u16string units =
      bytes.starts_with("\xFF\xFE") ? uncompressed(bytes.substr(2)) : plain(bytes);
  std::string text;
  for (std::size_t at = 0; at < units.size(); ++at) {
    const char32_t unit = units[at];
    if (isHigh(units[at]) && at + 1 < units.size() && isLow(units[at + 1])) {
      append(text, 0x10000 + ((unit - 0xD800) << 10) + (units[++at] - 0xDC00));
    } else {
      append(text, isHigh(units[at]) || isLow(units[at]) ? kBroken : unit);
    }
  }
  return text;
}

double asShown(float number) {
  char digits[32];
  const auto end = std::to_chars(digits, digits + sizeof digits, number).ptr;
  double shown = number;
  std::from_chars(digits, end, shown);
  return shown;
}

AccessValue jetDate(double days) {
  constexpr double kFirst = -657434, kBehindLast = 2958466;  // the years 100 to 9999
  constexpr int kSecondsOfDay = 86400;
  if (!(days > kFirst - 1 && days < kBehindLast)) return days;
  const double whole = std::trunc(days);
  auto second = static_cast<int>(std::lround(std::abs(days - whole) * kSecondsOfDay));
  auto day = static_cast<int>(whole);
  if (second == kSecondsOfDay) {
    second = 0;
    ++day;
  }
  DateTime time;
  time.date = plusDays({1899, 12, 30}, day);
  time.hour = second / 3600;
  time.minute = second / 60 % 60;
  time.second = second % 60;
  return time;
}
