#include "base/WholeFile.h"

#include <gmock/gmock.h>
#include <sys/stat.h>

#include <fstream>
#include <iterator>
#include <set>

#include "TemporaryFolder.h"
#include "base/FileName.h"

namespace fs = std::filesystem;

class WholeFileTest : public testing::Test {
 protected:
  std::set<std::string> names() const {
    std::set<std::string> found;
    for (const auto& entry : fs::directory_iterator(folder_.path()))
      found.insert(entry.path().filename().string());
    return found;
  }
  std::string content(const std::string& name) const {
    std::ifstream file(folder_.file(name));
    return {std::istreambuf_iterator<char>(file), {}};
  }
  TemporaryFolder folder_;
};

TEST_F(WholeFileTest, TakesItsNameWhenWholeAndTouchesNoOther) {
  const mode_t before = umask(0);
  for (const char* name : {"a", "a.part"}) std::ofstream(folder_.file(name)) << "old";
  {
    WholeFile given_up(folder_.file("a")), unnamed(folder_.file("a"));
    given_up.append("half");
    EXPECT_TRUE(fs::exists(given_up.path()));
    EXPECT_EQ(fs::status(given_up.path()).permissions(), fs::perms(0600));
  }
  EXPECT_EQ(names(), (std::set<std::string>{"a", "a.part"}));
  EXPECT_EQ(content("a") + content("a.part"), "oldold");
  for (const bool isNamed : {false, true}) {
    WholeFile file(folder_.file("a")), late(folder_.file("a"));
    if (isNamed) late.path();
    isNamed ? void(std::ofstream(file.path()) << "whole") : file.append("whole");
    file.finish();
    EXPECT_FALSE(late.finishAsNew());
    EXPECT_EQ(content("a"), "whole");
    EXPECT_EQ(fs::status(folder_.file("a")).permissions(), fs::perms(0600));
  }
  EXPECT_EQ(names(), (std::set<std::string>{"a", "a.part"}));
  umask(before);
}

TEST(FileNameTest, FindsWhateverTheCase) {
  const TemporaryFolder folder;
  const std::string root = folder.path().string();
  fs::create_directory(root + "/data");
  for (const char* name : {"/data/pos.mdb", "/Twice.ini", "/TWICE.ini", "/中文.txt"})
    std::ofstream(root + name) << "x";
  const std::pair<const char*, const char*> rows[] = {
      {"/data/pos.mdb", "/data/pos.mdb"},   {"/DATA/POS.mdb", "/data/pos.mdb"},
      {"\\Data\\Pos.MDB", "/data/pos.mdb"}, {"/Data/New.mdb", "/data/New.mdb"},
      {"/Gone/POS.mdb", "/Gone/POS.mdb"},   {"/Twice.ini", "/Twice.ini"},
      {"/twice.ini", "/TWICE.ini"},         {"/中文.TXT", "/中文.txt"}};
  for (const auto& [written, found] : rows)
    EXPECT_EQ(findIgnoringCase(root + written), root + found) << written;
}
