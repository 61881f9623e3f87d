#include <gmock/gmock.h>

#include <QGuiApplication>
#include <filesystem>
#include <fstream>

#include "TemporaryFolder.h"
#include "app/posMod.h"
#include "store/DataFile.h"
#include "store/StoreError.h"

namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

class posModTest : public testing::Test {
 protected:
  posModTest() { fs::create_directory(folder_.path() / "data"); }

  void makeShop(const std::string& name, const std::string& password = kBuiltInPassword) const {
    createDataFile({folder_.path() / name, password});
  }
  void configure(const std::string& text) const {
    std::ofstream(folder_.file("config.ini")) << text;
  }
  std::string openingFault() const { return posMod(folder_.path()).OpenDataStore(); }
  std::string bytes(const std::string& name) const {
    std::ifstream file(folder_.file(name), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  TemporaryFolder folder_;
};

TEST_F(posModTest, OpensTheDefaultDataFileWhateverTheCaseOfItsName) {
  makeShop("data/pos.MDB");
  EXPECT_EQ(openingFault(), "");
}

TEST_F(posModTest, OpensTheConfiguredDataFile) {
  makeShop("shop one.mdb", "");
  makeShop("two.mdb", "secret");
  const std::string folder = folder_.path().string();
  configure("[database]\npath =  " + folder + "/SHOP ONE.mdb  \n");
  EXPECT_EQ(openingFault(), "");
  configure("[Database]\nPath=" + folder + "/two.mdb;Jet OLEDB:Database password=secret\n");
  EXPECT_EQ(openingFault(), "");
  configure("[Database]\nPath=two.mdb;jet oledb:database password=wrong\n");
  EXPECT_THAT(openingFault(), HasSubstr("密码"));
}

TEST_F(posModTest, SaysWhyADataFileCannotBeOpenedAndLeavesNothingBehind) {
  EXPECT_THAT(openingFault(), HasSubstr("找不到"));
  EXPECT_TRUE(fs::is_empty(folder_.path() / "data"));
  makeShop("data/POS.mdb");
  configure("[Database]\nPath=/nowhere/POS.mdb\n");
  EXPECT_THAT(openingFault(), HasSubstr("/nowhere/POS.mdb"));
  configure("[Database]\nPath=" + folder_.path().string() + "\n");
  EXPECT_THAT(openingFault(), HasSubstr("文件夹"));
  configure("[Database]\nPath=no.mdb\n");
  std::ofstream(folder_.file("no.mdb")) << std::string(8192, 'x');
  EXPECT_THAT(openingFault(), Not(IsEmpty()));
}

TEST_F(posModTest, RefusesASecondTillUntilTheFirstIsGone) {
  makeShop("data/POS.mdb");
  {
    posMod first(folder_.path());
    ASSERT_EQ(first.OpenDataStore(), "");
    EXPECT_THAT(openingFault(), Not(IsEmpty()));
  }
  EXPECT_EQ(openingFault(), "");
}

TEST_F(posModTest, StartLoadsTheSettingsAndHidesThePointerUnlessShown) {
  makeShop("data/POS.mdb");
  for (const bool shown : {false, true}) {
    configure(shown ? "[POS]\nVMouse=1\n[KeyBoard]\nUp=87\n" : "[KeyBoard]\nUp=87\n");
    posMod pos(folder_.path());
    ASSERT_EQ(pos.OpenDataStore(), "");
    pos.start();
    EXPECT_EQ(pos.gKeyBoard.mUp, 87);
    EXPECT_EQ(QGuiApplication::overrideCursor() == nullptr, shown);
    pos.ShowMouse(true);
  }
}

TEST_F(posModTest, BackUpIsTheWholeDataFileForItsOwnerOnly) {
  makeShop("data/POS.mdb");
  std::ofstream(folder_.file("data/pos3.mdb")) << "an older copy";
  posMod pos(folder_.path());
  ASSERT_EQ(pos.OpenDataStore(), "");
  pos.start();
  ASSERT_EQ(pos.gSysParam.set("ShopName", "小店"), "");
  pos.backUp();
  EXPECT_EQ(bytes("data/pos3.mdb"), bytes("data/POS.mdb"));
  EXPECT_EQ(fs::status(folder_.file("data/pos3.mdb")).permissions(),
            fs::perms::owner_read | fs::perms::owner_write);
  ClsSysParam copied;
  copied.Conn(*openDataFile({folder_.file("data/pos3.mdb"), kBuiltInPassword}));
  EXPECT_EQ(copied.ShopName(), "小店");
  EXPECT_THAT(openingFault(), Not(IsEmpty())) << "the copying gave up the till's lock";
  EXPECT_EQ(pos.gSysParam.set("ShopName", "大店"), "");
}

TEST_F(posModTest, WhatHoldsSecretsIsItsOwnersAlone) {
  makeShop("data/POS.mdb");
  makeShop("data/plain.mdb", "");
  struct Case {
    const char* path;
    unsigned configAfterwards;
  };
  for (const Case& each : {Case{"data/POS.mdb;Jet OLEDB:Database password=kvrnex", 0600},
                           Case{"data/plain.mdb", 0644}}) {
    configure("[Database]\nPath=" + std::string(each.path) + "\n");
    std::ofstream(folder_.file("data/pos3.mdb")) << "a backup";
    for (const char* name : {"config.ini", "data/pos3.mdb"})
      fs::permissions(folder_.file(name), fs::perms(0644));
    posMod pos(folder_.path());
    ASSERT_EQ(pos.OpenDataStore(), "");
    EXPECT_EQ(pos.protectFiles(), "");
    EXPECT_EQ(fs::status(folder_.file("data/pos3.mdb")).permissions(), fs::perms(0600));
    EXPECT_EQ(fs::status(folder_.file("config.ini")).permissions(),
              fs::perms(each.configAfterwards))
        << each.path;
  }
}

TEST_F(posModTest, AFailingBackUpLeavesTheEarlierCopy) {
  makeShop("data/POS.mdb");
  std::ofstream(folder_.file("data/pos3.mdb")) << "an older copy";
  posMod pos(folder_.path());
  ASSERT_EQ(pos.OpenDataStore(), "");
  pos.start();
  ASSERT_EQ(pos.gSysParam.set("ShopName", "小店"), "");
  {
    const auto reader = openDataFile({folder_.file("data/POS.mdb"), kBuiltInPassword});
    Rows reading = reader->query("select name from sys_param");
    reading.next();
    ASSERT_EQ(pos.gSysParam.set("ShopName", "大店"), "");
    EXPECT_THROW(pos.backUp(), StoreError);
  }
  EXPECT_EQ(bytes("data/pos3.mdb"), "an older copy");
  EXPECT_FALSE(fs::exists(folder_.file("data/pos3.mdb.part")));
}

TEST_F(posModTest, BackUpTakesTheDefaultFileWhenAnotherOneIsConfigured) {
  makeShop("two.mdb");
  configure("[Database]\nPath=two.mdb;Jet OLEDB:Database password=kvrnex\n");
  posMod pos(folder_.path());
  ASSERT_EQ(pos.OpenDataStore(), "");
  EXPECT_THROW(pos.backUp(), StoreError);
  makeShop("data/POS.mdb");
  pos.backUp();
  EXPECT_EQ(bytes("data/pos3.mdb"), bytes("data/POS.mdb"));
}

}  // namespace
