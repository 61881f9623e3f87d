#include "base/Gbk.h"

#include <gmock/gmock.h>

TEST(GbkTest, EncodesAndSubstitutes) {
  const std::pair<std::string, std::string> rows[] = {
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
TEST(GbkTest, EveryCharacterIsTwoColumnsAndComesBack) {
  int characters = 0;
  for (int pair = 0x8140; pair <= 0xFEFE; ++pair) {
    const std::string bytes = {static_cast<char>(pair >> 8), static_cast<char>(pair & 0xFF)};
    const std::string character = gbk::decode(bytes);
    if (character.find("\uFFFD") != std::string::npos) continue;
    ASSERT_EQ(gbk::encode(character), bytes) << std::hex << pair;
    ASSERT_EQ(gbk::width(character), 2U) << std::hex << pair;
    ++characters;
  }
  EXPECT_GT(characters, 21000);
}

TEST(GbkTest, DecodesBrokenBytesInStep) {
  const std::pair<std::string, std::string> rows[] = {
      {"\xD6", "\uFFFD"},
      {"\x80\xFF\xD6\xD0", "€\uFFFD中"},
      {"\xD6\x31=2", "\uFFFD1=2"},        // the ASCII after a lost half stays
      {"\xAA\xA1\xD6\xD0", "\uFFFD中"}};  // user-defined pair
  for (const auto& [bytes, text] : rows) EXPECT_EQ(gbk::decode(bytes), text);
}

TEST(GbkTest, FitsColumnsWithoutCuttingACharacter) {
  EXPECT_EQ(gbk::cut("a中文", 2), "a");
  EXPECT_EQ(gbk::cut("a中文", 3), "a中");
  EXPECT_EQ(gbk::cut("\xFF\xFF", 3), "\xFF");
  EXPECT_EQ(gbk::centred("中文", 9, '*'), "**中文**");
  EXPECT_EQ(gbk::centred("中文", 3), "中文");
}
