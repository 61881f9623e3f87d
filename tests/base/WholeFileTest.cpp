#include "base/WholeFile.h"

#include <gmock/gmock.h>
#include <sys/stat.h>

#include <fstream>
#include <iterator>
#include <set>

#include "TemporaryFolder.h"
#include "base/FileName.h"
#include "base/PrivateFile.h"

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

TEST_F(WholeFileTest, IsItsGroupsTooInASharedFolderOnly) {
  constexpr unsigned kCases[][3] = {{02770, 0660, 02770}, {02775, 0600, 02700}, {0770, 0600, 0700}};
  for (const auto& [folder, file, inside] : kCases) {
    ASSERT_EQ(chmod(folder_.path().c_str(), folder), 0);
    WholeFile(folder_.file("made")).finish();
    std::ofstream(folder_.file("found")) << "by hand";
    fs::create_directory(folder_.file("inside"));
    EXPECT_TRUE(makePrivate(folder_.file("found")) && makePrivate(folder_.file("inside")));
    for (const auto& [name, rights] :
         {std::pair{"made", file}, {"found", file}, {"inside", inside}})
      EXPECT_EQ(fs::status(folder_.file(name)).permissions(), fs::perms(rights)) << name << folder;
    fs::remove(folder_.file("inside"));
  }
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
