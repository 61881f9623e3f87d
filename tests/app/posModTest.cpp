#include "app/posMod.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>

#include "TemporaryFolder.h"
#include "store/DataFile.h"
#include "store/StoreError.h"

namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;

class posModTest : public testing::Test {
 protected:
  posModTest() { fs::create_directory(folder_.path() / "data"); }

  void makeShop(const std::string& name, const std::string& password = kBuiltInPassword) const {
    createDataFile({folder_.path() / name, password});
  }
  void configure(const std::string& path) const {
    std::ofstream(folder_.file("config.ini")) << "[database]\npath = " << path << " \n";
  }
  std::string openingFault() const { return posMod(folder_.path()).OpenDataStore(); }
  TemporaryFolder folder_;
};

TEST_F(posModTest, OpensTheConfiguredDataFileOrSaysWhyNot) {
  EXPECT_THAT(openingFault(), testing::AllOf(HasSubstr("找不到"), HasSubstr("tilladmin create")));
  EXPECT_TRUE(fs::is_empty(folder_.path() / "data")) << "no new empty shop";
  makeShop("data/pos.MDB");
  EXPECT_EQ(openingFault(), "");
  makeShop("two.mdb", "secret");
  configure(folder_.file("TWO.mdb;Jet OLEDB:Database password=secret"));
  EXPECT_EQ(openingFault(), "");
  configure("two.mdb;jet oledb:database password=wrong");
  EXPECT_THAT(openingFault(), HasSubstr("密码"));
}

TEST_F(posModTest, RefusesASecondTillUntilTheFirstIsGone) {
  makeShop("data/POS.mdb");
  {
    posMod first(folder_.path());
    ASSERT_EQ(first.OpenDataStore(), "");
    first.backUp();
    EXPECT_NE(openingFault(), "") << "the copying gave up the till's lock";
  }
  EXPECT_EQ(openingFault(), "");
}

TEST_F(posModTest, BackUpIsTheWholeFileAndAFailingOneLeavesTheEarlierCopy) {
  makeShop("data/POS.mdb");
  const std::string copy = folder_.file("data/pos3.mdb");
  std::ofstream(copy) << "an older copy";
  posMod pos(folder_.path());
  ASSERT_EQ(pos.OpenDataStore(), "");
  pos.start();
  ASSERT_EQ(pos.gSysParam.set("ShopName", "小店"), "");
  pos.backUp();
  EXPECT_EQ(fs::status(copy).permissions(), fs::perms::owner_read | fs::perms::owner_write);
  {
    const auto reader = openDataFile({folder_.file("data/POS.mdb"), kBuiltInPassword});
    Rows reading = reader->query("select name from sys_param");
    reading.next();
    ASSERT_EQ(pos.gSysParam.set("ShopName", "大店"), "");
    EXPECT_THROW(pos.backUp(), StoreError);
  }
  ClsSysParam copied;
  copied.Conn(*openDataFile({copy, kBuiltInPassword}));
  EXPECT_EQ(copied.ShopName(), "小店");
  EXPECT_FALSE(fs::exists(copy + ".part"));
}

TEST_F(posModTest, WhatHoldsSecretsIsItsOwnersAlone) {
  makeShop("data/POS.mdb");
  makeShop("data/plain.mdb", "");
  const std::pair<const char*, unsigned> cases[] = {
      {"data/POS.mdb;Jet OLEDB:Database password=kvrnex", 0600}, {"data/plain.mdb", 0644}};
  for (const auto& [path, configAfterwards] : cases) {
    configure(path);
    std::ofstream(folder_.file("data/pos3.mdb")) << "a backup";
    for (const char* name : {"config.ini", "data/pos3.mdb"})
      fs::permissions(folder_.file(name), fs::perms(0644));
    posMod pos(folder_.path());
    ASSERT_EQ(pos.OpenDataStore(), "");
    EXPECT_EQ(pos.protectFiles(), "");
    EXPECT_EQ(fs::status(folder_.file("data/pos3.mdb")).permissions(), fs::perms(0600));
    EXPECT_EQ(fs::status(folder_.file("config.ini")).permissions(), fs::perms(configAfterwards))
        << path;
  }
}

TEST_F(posModTest, BackUpTakesTheDefaultFileWhenAnotherOneIsConfigured) {
  makeShop("two.mdb");
  configure("two.mdb;Jet OLEDB:Database password=kvrnex");
  posMod pos(folder_.path());
  ASSERT_EQ(pos.OpenDataStore(), "");
  EXPECT_THROW(pos.backUp(), StoreError);
  makeShop("data/POS.mdb", "the default one's");
  pos.backUp();
  EXPECT_NO_THROW(openDataFile({folder_.file("data/pos3.mdb"), "the default one's"}));
}

}  // namespace
