#include "base/FileName.h"

#include <gmock/gmock.h>

#include <fstream>

#include "TemporaryFolder.h"

namespace {

TEST(FileNameTest, FindsWhateverTheCase) {
  const TemporaryFolder folder;
  const std::string root = folder.path().string();
  std::filesystem::create_directory(root + "/data");
  for (const char* name : {"/data/pos.mdb", "/Twice.ini", "/TWICE.ini", "/中文.txt"}) {
    std::ofstream(root + name) << "x";
  }
  const std::pair<const char*, const char*> rows[] = {
      {"/data/pos.mdb", "/data/pos.mdb"},   {"/DATA/POS.mdb", "/data/pos.mdb"},
      {"\\Data\\Pos.MDB", "/data/pos.mdb"}, {"/Data/New.mdb", "/data/New.mdb"},
      {"/Gone/POS.mdb", "/Gone/POS.mdb"},   {"/Twice.ini", "/Twice.ini"},
      {"/twice.ini", "/TWICE.ini"},         {"/中文.TXT", "/中文.txt"}};
  for (const auto& [written, found] : rows) {
    EXPECT_EQ(findIgnoringCase(root + written), root + found) << written;
  }
}

}  // namespace
