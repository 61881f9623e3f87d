#include "app/posMod.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>

#include "TemporaryFolder.h"
#include "base/ShopFolder.h"
#include "store/Connection.h"
#include "store/DataFile.h"
#include "store/StoreError.h"

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
  EXPECT_THAT(openingFault(), testing::AllOf(HasSubstr("找不到"), HasSubstr("没有接上的磁盘")));
  EXPECT_TRUE(fs::is_empty(folder_.path() / "data")) << "no new empty shop";
  makeShop("data/pos.MDB");
  EXPECT_EQ(openingFault(), "");
  configure("D:\\shop\\POS.mdb");
  EXPECT_THAT(openingFault(), HasSubstr("D:\\shop\\POS.mdb"));
  makeShop("two.mdb", "secret");
  configure(folder_.file("TWO.mdb;Jet OLEDB:Database password=secret"));
  EXPECT_EQ(openingFault(), "");
  configure("two.mdb;jet oledb:database password=wrong");
  EXPECT_THAT(openingFault(), HasSubstr("密码"));
}

TEST_F(posModTest, TheShopIsBesideTheProgramUnlessSomethingElseIsNamed) {
  EXPECT_EQ(shopFolder("", folder_.path()), folder_.path());
  std::ofstream(folder_.file("shop-folder")) << "# the shop\n\n /var/shop \n/another\n";
  EXPECT_EQ(shopFolder("", folder_.path()), "/var/shop");
  EXPECT_EQ(shopFolder("here", folder_.path()), fs::current_path() / "here");
  std::ofstream(folder_.file("shop-folder")) << "# none named\n";
  EXPECT_EQ(shopFolder("", folder_.path()), folder_.path());
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
  EXPECT_THAT(openingFault(), HasSubstr("已经打开"));
  EXPECT_EQ(fs::status(copy).permissions(), fs::perms::owner_read | fs::perms::owner_write);
  {
    const auto reader = openDataFile({folder_.file("data/POS.mdb"), kBuiltInPassword});
    Rows reading = reader->query("select name from sys_param");
    reading.next();
    ASSERT_EQ(pos.gSysParam.set("ShopName", "大店"), "");
    EXPECT_THAT([&] { pos.backUp(); }, testing::ThrowsMessage<StoreError>(HasSubstr("占用")));
  }
  ClsSysParam copied;
  copied.Conn(*openDataFile({copy, kBuiltInPassword}));
  EXPECT_EQ(copied.ShopName(), "小店");
  const fs::directory_iterator files(folder_.path() / "data");
  EXPECT_EQ(std::distance(begin(files), end(files)), 4) << "shop, its two logs and the copy";
}

TEST_F(posModTest, WhatHoldsSecretsIsItsOwnersAlone) {
  makeShop("data/POS.mdb");
  makeShop("data/plain.mdb", "");
  const std::pair<const char*, unsigned> cases[] = {
      {"data/POS.mdb;Jet OLEDB:Database password=kvrnex", 0600}, {"data/plain.mdb", 0644}};
  for (const auto& [path, configAfterwards] : cases) {
    configure(path);
    std::ofstream(folder_.file("data/pos3.mdb")) << "a backup";
    posMod pos(folder_.path());
    ASSERT_EQ(pos.OpenDataStore(), "");
    const std::string shop = pos.gConn->source().path.string();
    const std::string secrets[] = {shop, shop + "-wal", folder_.file("data/pos3.mdb")};
    for (const std::string& name : secrets) fs::permissions(name, fs::perms(0664));
    fs::permissions(folder_.file("config.ini"), fs::perms(0644));
    EXPECT_EQ(pos.protectFiles(), "");
    for (const std::string& name : secrets)
      EXPECT_EQ(fs::status(name).permissions(), fs::perms(0600)) << name;
    EXPECT_EQ(fs::status(folder_.file("config.ini")).permissions(), fs::perms(configAfterwards))
        << path;
  }
}

TEST_F(posModTest, BackUpTakesTheFileThatIsOpenWhateverElseIsSpelledAlike) {
  makeShop("data/POS.mdb");
  makeShop("data/another.mdb", "another one's");
  fs::rename(folder_.file("data/another.mdb"), folder_.file("data/pos.mdb"));
  posMod pos(folder_.path());
  ASSERT_EQ(pos.OpenDataStore(), "");
  pos.start();
  for (const bool isLost : {false, true}) {
    if (isLost) fs::rename(folder_.file("data/pos.mdb"), folder_.file("data/POS.mdb"));
    EXPECT_EQ(pos.wantsBackUp(), isLost);
    pos.backUp();
    EXPECT_NO_THROW(openDataFile({folder_.file("data/pos3.mdb"), kBuiltInPassword}));
    fs::remove(folder_.file("data/pos3.mdb"));
  }
  fs::create_symlink(pos.gConn->source().path, folder_.file("data/pos3.mdb"));
  EXPECT_THAT([&] { pos.backUp(); }, testing::ThrowsMessage<StoreError>(HasSubstr("自己")));
}
