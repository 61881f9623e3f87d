#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "Owner.h"
#include "saleslib/ClsLogin.h"
#include "store/DataFileLock.h"

namespace {

using testing::HasSubstr;

struct CommandTest : testing::Test {
  Owner owner;
  void SetUp() override { ASSERT_EQ(owner.run({"create", owner.shop}), 0) << owner.err; }

  int addOperator(const std::string& number, std::vector<std::string> more = {}) {
    std::vector<std::string> words = {"operator", "add",    owner.shop, "--number",
                                      number,     "--name", "张三"};
    words.insert(words.end(), more.begin(), more.end());
    return owner.run(words);
  }
  std::ptrdiff_t filesLeft() const {
    return std::distance(std::filesystem::directory_iterator(owner.folder.path()), {});
  }
  bool canLogIn(const char* number, const char* password) {
    const std::unique_ptr<Connection> connection = owner.open();
    ClsLogin login;
    login.Conn(*connection);
    return login.Check(number, password);
  }
};

TEST_F(CommandTest, TheFilePasswordIsBuiltInGivenNoneOrTyped) {
  const std::string builtIn = owner.folder.file("built-in"), plain = owner.folder.file("plain"),
                    own = owner.folder.file("own");
  EXPECT_EQ(owner.run({"create", builtIn}), 0) << owner.err;
  EXPECT_EQ(owner.run({"check", builtIn, "--file-password", "kvrnex"}), 0) << owner.err;
  EXPECT_EQ(owner.run({"create", plain, "--file-password", ""}), 0) << owner.err;
  EXPECT_EQ(owner.run({"check", plain, "--file-password="}), 0) << owner.err;
  EXPECT_EQ(owner.run({"check", plain}), 1);
  owner.typed = "p'w d\n";
  EXPECT_EQ(owner.run({"create", own, "--ask-file-password"}), 0) << owner.err;
  EXPECT_EQ(owner.run({"check", own, "--ask-file-password"}), 0) << owner.err;
  EXPECT_THAT(owner.out + owner.err, testing::Not(HasSubstr("p'w d")));
  EXPECT_EQ(owner.run({"check", own, "--file-password=p'w d"}), 0) << owner.err;
  EXPECT_EQ(owner.run({"check", own, "--ask-file-password", "--file-password", "x"}), 2);
  EXPECT_EQ(owner.run({"check", own}), 1);
  EXPECT_EQ(owner.out, "");
  owner.typed = "p'w d\n111\n";
  EXPECT_EQ(
      owner.run({"operator", "add", own, "--ask-file-password", "--number", "1", "--name", "张三"}),
      0)
      << owner.err;
  EXPECT_EQ(owner.run({"check", owner.folder.file("none")}), 1);
  EXPECT_FALSE(std::filesystem::exists(owner.folder.file("none")));
}

TEST_F(CommandTest, ABackupIsMadeWhileTheTillSells) {
  const std::string copy = owner.folder.file("backup.mdb");
  std::ofstream(copy) << "an older backup";
  ASSERT_EQ(addOperator("7", {"--password", "111"}), 0);
  {
    const std::unique_ptr<Connection> till = owner.open();
    till->run("begin immediate");
    till->run("delete from operators");
    EXPECT_EQ(owner.run({"backup", owner.shop, copy}), 0) << owner.err;
    till->run("commit");
  }
  EXPECT_EQ(std::filesystem::status(copy).permissions(), std::filesystem::perms(0600));
  EXPECT_EQ(openDataFile({copy, ""})->Open("select * from operators").count(), 1U);

  EXPECT_EQ(owner.run({"backup", owner.shop, owner.shop}), 1);
  EXPECT_EQ(owner.run({"backup", owner.shop, owner.folder.file("none/backup.mdb")}), 1);
  EXPECT_THAT(owner.err, HasSubstr("文件夹不存在"));
  EXPECT_TRUE(owner.open()) << "the data file is still one";
}

TEST_F(CommandTest, ABackupThatDoesNotReadIsNotTaken) {
  const std::string copy = owner.folder.file("backup.mdb");
  std::ofstream(copy) << "an older backup";
  owner.scratchShop();
  EXPECT_EQ(owner.run({"backup", owner.shop, copy}), 1);
  EXPECT_THAT(owner.err, HasSubstr("没有采用"));
  EXPECT_EQ(std::filesystem::file_size(copy), 15U);
  EXPECT_EQ(filesLeft(), 2) << "the shop and the older backup";
}

TEST_F(CommandTest, ARestoredBackupIsNotMixedWithTheOldLog) {
  const std::string backup = owner.folder.file("backup.mdb");
  ASSERT_EQ(owner.run({"backup", owner.shop, backup}), 0) << owner.err;
  Owner crashed;
  {
    const std::unique_ptr<Connection> till = owner.open();
    till->run("insert into stock values ('late', 1)");
    const DataFileLock lock(owner.shop);
    EXPECT_EQ(owner.run({"restore", backup, owner.shop}), 1);
    EXPECT_THAT(owner.err, HasSubstr("已经打开"));
    for (const char* part : {"", "-wal"})
      std::filesystem::copy(owner.shop + part, crashed.shop + part);
  }
  EXPECT_EQ(crashed.run({"restore", crashed.shop, backup}), 1);
  EXPECT_THAT(crashed.err, HasSubstr("日志"));
  std::ofstream(crashed.folder.file("noise")) << "no backup";
  EXPECT_EQ(crashed.run({"restore", crashed.folder.file("noise"), crashed.shop}), 1);
  EXPECT_THAT(crashed.err, HasSubstr("没有恢复"));
  ASSERT_EQ(crashed.run({"restore", backup, crashed.shop}), 0) << crashed.err;
  EXPECT_EQ(crashed.value("select count(*) as value from stock"), "0");
  const std::string old = crashed.folder.file("POS.mdb.old-20261122-090503");
  EXPECT_THAT(crashed.out, HasSubstr(old));
  EXPECT_EQ(openDataFile({old, ""})->Open("select * from stock where spbm='late'").count(), 1U);
}

TEST_F(CommandTest, OperatorsComeAndGo) {
  ASSERT_EQ(addOperator("7", {"--password", "111", "--right", "sell"}), 0) << owner.err;
  EXPECT_TRUE(canLogIn("7", "111"));
  EXPECT_EQ(addOperator("7", {"--password", "222"}), 1);
  EXPECT_THAT(owner.err, HasSubstr("已经有操作员 7"));
  EXPECT_EQ(addOperator("8", {"--password", "1", "--right", "fly"}), 2);
  EXPECT_THAT(owner.err, HasSubstr("参数的值不对：--right: 只能是 sell、report，写的是“fly”"));
  EXPECT_EQ(addOperator("32768", {"--password", "1"}), 2);
  owner.typed = "秘密\r\n";
  ASSERT_EQ(addOperator("8"), 0) << owner.err;
  EXPECT_THAT(owner.out, HasSubstr("不能收银"));
  EXPECT_TRUE(canLogIn("8", "秘密"));
  owner.typed = "";
  EXPECT_EQ(addOperator("9"), 1) << "no password at all is not an empty one";

  EXPECT_EQ(owner.run({"operator", "password", owner.shop, "--number", "7", "--password", "333"}),
            0);
  EXPECT_FALSE(canLogIn("7", "111"));
  EXPECT_TRUE(canLogIn("7", "333"));
  ASSERT_EQ(owner.run({"operator", "list", owner.shop}), 0);
  EXPECT_EQ(owner.out, "7\t张三\tsell\n8\t张三\t-\n");

  owner.execute("insert into sell (sell_time, operator_id) values ('2026-11-22 09:00:00', 7)");
  EXPECT_EQ(owner.run({"operator", "remove", owner.shop, "--number", "7"}), 1);
  EXPECT_THAT(owner.err, HasSubstr("没结的单据"));
  EXPECT_EQ(owner.run({"operator", "remove", owner.shop, "--number", "8"}), 0);
  EXPECT_FALSE(canLogIn("8", "秘密"));
}

TEST_F(CommandTest, ParametersAreSetAllOrNone) {
  EXPECT_EQ(owner.run({"param", "set", owner.shop, "ShopName=惠邻=便利店", "PointUnit=5"}), 0)
      << owner.err;
  for (const char* bad : {"PointUnit=many", "Colour=1", "ShopName"}) {
    EXPECT_EQ(owner.run({"param", "set", owner.shop, "ShopName=别的", bad}), 1) << bad;
    EXPECT_THAT(owner.err, HasSubstr(bad));
  }
  ASSERT_EQ(owner.run({"param", "list", owner.shop}), 0);
  EXPECT_THAT(owner.out, HasSubstr("ShopName=惠邻=便利店\n"));
  EXPECT_THAT(owner.out, HasSubstr("PointUnit=5\n"));
}

TEST_F(CommandTest, AReportGoesToThePeriodsFileOrTheStandardOutput) {
  const auto report = [&](std::vector<std::string> more) {
    more.insert(more.begin(), {"report", owner.shop});
    return owner.run(more);
  };
  EXPECT_EQ(report({}), 0) << owner.err;
  EXPECT_THAT(owner.out, HasSubstr("2026-11-01 至 2026-11-22"));
  const std::string file = owner.folder.file("r.html");
  EXPECT_EQ(report({"--from", "1031", "--to=2026-11-01", "--format=html", "--out", file}), 0);
  EXPECT_EQ(owner.out, "已写到 " + file + "\n");
  EXPECT_TRUE(std::filesystem::exists(file));
  EXPECT_EQ(report({"--from", "11-31"}), 1);
  EXPECT_EQ(report({"--from", "2026-11-02", "--to", "2026-11-01"}), 1);
  EXPECT_EQ(report({"--format=xlsx", "--out", "-"}), 1);
  EXPECT_EQ(report({"--out", owner.shop}), 1);
  EXPECT_EQ(owner.run({"check", owner.shop}), 0) << owner.out;
}

}  // namespace
