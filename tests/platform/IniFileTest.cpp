#include "platform/IniFile.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <iterator>

#include "TemporaryFolder.h"
#include "base/Gbk.h"

namespace {

namespace fs = std::filesystem;

class IniFileTest : public testing::Test {
 protected:
  void put(const std::string& bytes) { std::ofstream(path_, std::ios::binary) << bytes; }
  std::string content() const {
    std::ifstream file(path_, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }

  TemporaryFolder folder_;
  std::string path_ = folder_.file("Config.ini");
  IniFile ini_{folder_.file("config.INI")};
};

TEST_F(IniFileTest, ReadsAsWindowsDoes) {
  put(gbk::encode("stray=1\r\n[Other]\r\nPPort=no\r\n [ pos ] ; here\r\n;PPort=comment\r\n"
                  "  pport \t=  LPT1 \t\r\nPPort=second\r\nEmpty=\r\nNoEquals\r\n"
                  "Quoted=\"  two  \"\r\nSingle='x'\r\nTwice=\"\"y\"\"\r\nHalf=\"z\r\n"
                  "Path=a=b;c\r\nMode=打印商品全称+折扣\r\n"
                  "Nul=a") +
      std::string(1, '\0') + "b\r\n[POS]\r\nLate=1\r\n" + gbk::encode("[朷]\r\nLast=9"));
  const std::pair<const char*, const char*> cases[] = {
      {"PPort", "LPT1"}, {"EMPTY", ""},      {"Quoted", "  two  "},
      {"Single", "x"},   {"Twice", "\"y\""}, {"Half", "\"z"},
      {"path", "a=b;c"}, {"Nul", "ab"},      {"Mode", "打印商品全称+折扣"}};
  for (const auto& [key, value] : cases) EXPECT_EQ(ini_.read("POS", key), value) << key;
  for (const char* none : {"NoEquals", "Late", "stray", ";PPort", "absent"})
    EXPECT_EQ(ini_.read("POS", none), std::nullopt) << none;
  EXPECT_EQ(ini_.read("朷", "Last"), "9");  // its second byte in GBK is "]"
  EXPECT_EQ(ini_.read("none", "PPort"), std::nullopt);
}

std::string utf16(std::u16string_view text, bool isBigEndian = false) {
  std::string bytes;
  for (const char16_t unit : text)
    for (const bool isFirst : {true, false})
      bytes += static_cast<char>(isFirst == isBigEndian ? unit >> 8 : unit);
  return bytes;
}

TEST_F(IniFileTest, WritesNothingButTheValue) {
  const std::array<std::string, 3> cases[] = {
      {"", "1", "[POS]\r\na=1\r\n"},
      {"; hi\n[pos]\nA = 0 \nb=2\n\n[X]\nq= 1\n", "7", "; hi\n[pos]\nA = 7\nb=2\n\n[X]\nq= 1\n"},
      {"[POS]\r\nb=2\r\n\r\n; of X\r\n[X]\r\n", "", "[POS]\r\nb=2\r\na=\r\n\r\n; of X\r\n[X]\r\n"},
      {"[POS]\r\n;a=1\r\n[X]\r\na=3", "7", "[POS]\r\na=7\r\n;a=1\r\n[X]\r\na=3\r\n"},
      {"[POS]\r\na=1\r\n", "x\r\n[Color]\nC1=9", "[POS]\r\na=x  [Color] C1=9\r\n"},
      {"\xEF\xBB\xBF[POS]\na=打印\n", "不打印", "\xEF\xBB\xBF[POS]\na=不打印\n"},
      {"[POS]\na=打印\n", "不打印", "[POS]\na=不打印\n"},
      {"; é\n[POS]\na=打印\n", "USB", "\xEF\xBB\xBF; é\n[POS]\na=USB\n"},  // else it reads as GBK
      {utf16(u"\uFEFF[POS]\r\na=打印\r\n"), "不打印", utf16(u"\uFEFF[POS]\r\na=不打印\r\n")},
      {utf16(u"\uFEFF[POS]\na=打", true), "印", utf16(u"\uFEFF[POS]\na=印\n", true)},
      {"\xFF\xFE\x01 junk\r\r\n\x80[", "1", "\xFF\xFE\x01 junk\r\r\n\x80[\r\n[POS]\r\na=1\r\n"}};
  for (const auto& [before, value, after] : cases) {
    put(before);
    EXPECT_TRUE(ini_.write("POS", "a", value));
    EXPECT_EQ(content(), after) << before;
  }
}

TEST_F(IniFileTest, SurvivesWhatIsNoWritableFile) {
  EXPECT_EQ(ini_.read("POS", "PPort"), std::nullopt);
  EXPECT_FALSE(IniFile(folder_.file("no/such/Config.ini")).write("POS", "a", "1"));
  put("[POS]\r\na=1\r\n");
  fs::permissions(path_, fs::perms::owner_read);
  EXPECT_FALSE(ini_.write("POS", "a", "2"));
  EXPECT_EQ(ini_.read("POS", "a"), "1");
  fs::permissions(path_, fs::perms::owner_all | fs::perms::group_read);
  fs::rename(path_, folder_.file("real"));
  fs::create_symlink(folder_.file("real"), path_);
  EXPECT_TRUE(ini_.write({{"POS", "a", "2"}, {"POS", "b", "3"}}));
  EXPECT_EQ(content(), "[POS]\r\na=2\r\nb=3\r\n");
  EXPECT_TRUE(fs::is_symlink(path_));
  EXPECT_EQ(fs::status(path_).permissions(), fs::perms::owner_all | fs::perms::group_read);
  EXPECT_EQ(std::distance(fs::directory_iterator(folder_.path()), {}), 2) << "a stray file stayed";
}

}  // namespace
