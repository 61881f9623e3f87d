#include "base/Gbk.h"

#include <gmock/gmock.h>

namespace {

std::string utf8(char32_t code) {
  const auto byte = [](char32_t bits) { return static_cast<char>(bits); };
  const auto tail = [&](int shift, char32_t c) { return byte(0x80 | ((c >> shift) & 0x3F)); };
  if (code < 0x80) return {byte(code)};
  if (code < 0x800) return {byte(0xC0 | (code >> 6)), tail(0, code)};
  if (code < 0x10000) return {byte(0xE0 | (code >> 12)), tail(6, code), tail(0, code)};
  return {byte(0xF0 | (code >> 18)), tail(12, code), tail(6, code), tail(0, code)};
}

TEST(Gbk, EncodesAndSubstitutes) {
  const std::pair<std::string, std::string> rows[] = {
      {"", ""},
      {"Cola 330ml", "Cola 330ml"},
      {"中a文", "\xD6\xD0\x61\xCE\xC4"},
      {"镕", "\xE9\x46"},  // in GBK, not in GB 2312
      {"€1", "? 1"},
      {"a😀b中", "a? b\xD6\xD0"},
      {"\xE4\xB8", "? ? "},  // a character cut off at the end
      {"x\xFF\xC0\x80y中", "x? ? ? y\xD6\xD0"},
      {"\xED\xA0\x80", "? ? ? "}};  // a surrogate
  for (const auto& [text, bytes] : rows) {
    EXPECT_EQ(gbk::encode(text), bytes) << text;
    EXPECT_EQ(gbk::width(text), bytes.size()) << text;
  }
}

// The printed columns stand or fall with this: what is counted is what is sent.
TEST(Gbk, WidthIsTheEncodedSizeOfEveryCharacterAndDecodingRestoresIt) {
  int inGbk = 0;
  for (char32_t code = 1; code < 0x20000; ++code) {
    if (code >= 0xD800 && code <= 0xDFFF) continue;
    const std::string character = utf8(code);
    const std::string bytes = gbk::encode(character);
    ASSERT_EQ(bytes.size(), gbk::width(character)) << std::hex << static_cast<unsigned>(code);
    if (bytes == "? ") continue;
    ASSERT_EQ(gbk::decode(bytes), character) << std::hex << static_cast<unsigned>(code);
    ++inGbk;
  }
  EXPECT_GT(inGbk, 21000);
}

TEST(Gbk, DecodesBrokenBytesInStep) {
  const std::pair<std::string, std::string> rows[] = {
      {"abc", "abc"},
      {"\xD6\xD0"
       "a\xCE\xC4",
       "中a文"},
      {"\xD6", "\uFFFD"},
      {"\x80\xFF\xD6\xD0", "€\uFFFD中"},
      {"\xD6"
       "1=2",
       "\uFFFD1=2"},                      // the ASCII after a lost half stays
      {"\xAA\xA1\xD6\xD0", "\uFFFD中"}};  // user-defined pair
  for (const auto& [bytes, text] : rows) EXPECT_EQ(gbk::decode(bytes), text);
}

TEST(Gbk, FitsColumnsWithoutCuttingACharacter) {
  EXPECT_EQ(gbk::cut("a中文", 2), "a");
  EXPECT_EQ(gbk::cut("a中文", 3), "a中");
  EXPECT_EQ(gbk::cut("a中文", 99), "a中文");
  EXPECT_EQ(gbk::cut("\xFF\xFF", 3), "\xFF");
  EXPECT_EQ(gbk::centred("中文", 9, '*'), "**中文**");
  EXPECT_EQ(gbk::centred("中文", 3), "中文");
  EXPECT_EQ(gbk::right("1.50", 6), "  1.50");
  EXPECT_EQ(gbk::right("123456", 4), "3456");
  EXPECT_EQ(gbk::right("中文", 3), " 文");
}

}  // namespace
