#include <filesystem>

#include "Owner.h"
#include "saleslib/ClsLogin.h"
#include "store/DataFileLock.h"
#include "tools/AutostartCommand.h"

using testing::HasSubstr;

struct CommandTest : OwnerTest {
  std::ptrdiff_t filesLeft() const {
    return std::distance(std::filesystem::directory_iterator(folder.path()), {});
  }
  bool canLogIn(const char* number, const char* password) const {
    const std::unique_ptr<Connection> connection = open();
    ClsLogin login;
    login.Conn(*connection);
    return login.Check(number, password);
  }
};

TEST_F(CommandTest, TheFilePasswordIsBuiltInGivenNoneOrTyped) {
  expect(0, "", "create ./built-in");
  expect(0, "", "check ./built-in --file-password kvrnex");
  expect(0, "", "create ./plain --file-password=");
  expect(0, "", "check ./plain --file-password=");
  expect(1, "没有密码", "check ./plain");
  typed = "p'w d\n";
  expect(0, "", "create ./own --ask-file-password");
  expect(0, "", "check ./own --ask-file-password");
  EXPECT_THAT(out + err, Not(HasSubstr("p'w d")));
  expect(0, "", "check ./own --file-password=p'w~d");
  expect(2, "", "check ./own --ask-file-password --file-password x");
  expect(1, "密码不对", "check ./own");
  EXPECT_EQ(out, "");
  typed = "p'w d\n111\n";
  expect(0, "", "operator add ./own --ask-file-password --number 1 --name 张三");
  const std::ptrdiff_t files = filesLeft();
  expect(1, "找不到数据文件", "check ./none");
  EXPECT_EQ(filesLeft(), files);
}

TEST_F(CommandTest, ABackupIsMadeWhileTheTillSells) {
  write("backup.mdb", "an older backup");
  expect(0, "", "operator add @ --number 7 --name 张三 --password 111");
  {
    const std::unique_ptr<Connection> till = open();
    till->runScript("begin immediate; delete from operators");
    expect(0, "", "backup @ ./backup.mdb");
    till->run("commit");
  }
  const std::string copy = folder.file("backup.mdb");
  EXPECT_EQ(std::filesystem::status(copy).permissions(), std::filesystem::perms(0600));
  EXPECT_EQ(openDataFile({copy, ""})->Open("select * from operators").count(), 1U);
  expect(1, "", "backup @ " + shop);
  expect(1, "文件夹不存在", "backup @ ./none/backup.mdb");
  EXPECT_TRUE(open()) << "the data file is still one";
}

TEST_F(CommandTest, ABackupThatDoesNotReadIsNotTaken) {
  write("backup.mdb", "an older backup");
  scratchShop();
  expect(1, "没有采用", "backup @ ./backup.mdb");
  EXPECT_EQ(std::filesystem::file_size(folder.file("backup.mdb")), 15U);
  EXPECT_EQ(filesLeft(), 2) << "the shop and the older backup";
}

TEST_F(CommandTest, ARestoredBackupIsNotMixedWithTheOldLog) {
  const std::string backup = folder.file("backup.mdb");
  expect(0, "", "backup @ " + backup);
  Owner crashed;
  {
    const std::unique_ptr<Connection> till = open();
    till->run("insert into stock values ('late', 1)");
    const DataFileLock lock(shop);
    expect(1, "已经打开", "restore " + backup + " @");
    for (const char* part : {"", "-wal"}) std::filesystem::copy(shop + part, crashed.shop + part);
  }
  crashed.expect(1, "日志", "restore @ " + backup);
  crashed.write("noise", "no backup");
  crashed.expect(1, "没有恢复", "restore ./noise @");
  const std::string old = crashed.folder.file("POS.mdb.old-20261122-090503");
  crashed.expect(0, old, "restore " + backup + " @");
  EXPECT_EQ(crashed.value("select count(*) as value from stock"), "0");
  EXPECT_EQ(openDataFile({old, ""})->Open("select * from stock where spbm='late'").count(), 1U);
}

TEST_F(CommandTest, TheDatedBackupsAreListedWithWhatTheyHoldAndOneIsRestored) {
  expect(1, "没有每天的备份", "restore @");
  std::filesystem::create_directory(folder.file("backups"));
  expect(0, "", "backup @ ./backups/POS-2026-11-20.mdb");
  open()->run(
      "insert into sell (sell_time, operator_id, state) values ('2026-11-21 20:00:00', 1, 1)");
  expect(0, "", "backup @ ./backups/POS-2026-11-22.mdb");
  write("backups/POS-2026-11-21.mdb", "noise");
  write("backups/POS-2026-11-19.mdb.a1b2c3", "a backup that was not finished");
  for (const char* no : {"", "0\n", "4\n"}) {
    typed = no;
    expect(1, "没有选备份", "restore @ --from ./backups");
  }
  EXPECT_THAT(out,
              HasSubstr("1  2026-11-22  单据 1 张，最后一张 2026-11-21 20:00:00\n2  2026-11-21  "));
  EXPECT_THAT(out, HasSubstr("\n3  2026-11-20  单据 0 张\n"));
  typed = "3\n";
  expect(0, "已用", "restore @");
  EXPECT_EQ(value("select count(*) as value from sell"), "0");
}

TEST_F(CommandTest, TheTillStartsByItselfAsLongAsItIsToldTo) {
  setenv("XDG_CONFIG_HOME", folder.path().c_str(), 1);
  const std::string entry = folder.file("autostart/till.desktop");
  const auto till = std::filesystem::read_symlink("/proc/self/exe").parent_path() / "till";
  expect(0, "", "autostart on");
  std::ifstream file(entry);
  EXPECT_EQ(std::string(std::istreambuf_iterator<char>(file), {}), autostartEntry(till));
  expect(2, "", "autostart maybe");
  expect(0, "", "autostart off");
  EXPECT_FALSE(std::filesystem::exists(entry));
  EXPECT_THAT(autostartEntry("/a $b/100%\\\"c"),
              testing::EndsWith("TryExec=/a $b/100%\\\\\"c\n"
                                "Exec=\"/a \\\\$b/100%%\\\\\\\\\\\\\"c\"\n"));
}

TEST_F(CommandTest, OperatorsComeAndGo) {
  expect(0, "", "operator add @ --number 7 --name 张三 --password 111 --right sell");
  EXPECT_TRUE(canLogIn("7", "111"));
  expect(1, "已经有操作员 7", "operator add @ --number 7 --name 张三 --password 222");
  for (const std::string bad : {"fly", "drawer:5", "discount:101"})
    expect(2, "写的是“" + bad + "”",
           "operator add @ --number 8 --name 张三 --password 1 --right " + bad);
  expect(2, "--number", "operator add @ --number 32768 --name 张三 --password 1");
  typed = "秘密\r\n";
  expect(0, "不能收银", "operator add @ --number 8 --name 张三");
  EXPECT_TRUE(canLogIn("8", "秘密"));
  typed = "";
  expect(1, "密码", "operator add @ --number 9 --name 张三");  // none at all is not an empty one
  expect(0, "", "operator password @ --number 7 --password 333");
  EXPECT_TRUE(canLogIn("7", "333") && !canLogIn("7", "111"));
  expect(0, "", "operator list @");
  EXPECT_EQ(out, "7\t张三\tsell\n8\t张三\t-\n");
  expect(0, "",
         "operator add @ --number 10 --name 李四 --password 1 --right all --right DISCOUNT:10");
  expect(0, "10\t李四\tsell,discount:10,price,negative,delete,return,topup,drawer,reprint,query,",
         "operator list @");
  expect(0, "账目正确", "check @");
  for (const char* track : {"12345", ";8899?"}) {
    typed = track;
    expect(*track == ';' ? 0 : 1, "卡", "operator card @ --number 10");
  }
  expect(1, "别的操作员", "operator card @ --number 7");
  expect(0, "", "operator remove @ --number 10");
  expect(0, "可以刷这张卡", "operator card @ --number 7");
  expect(0, "没有员工卡了", "operator card @ --number 7 --remove");
  typed = "";

  expect(1, "没有操作员 9", "operator right @ --number 9 --give report");
  expect(1, "--give", "operator right @ --number 7");
  execute("insert into operator_rights (operator_id, right_key) values (8, 'Report')");
  expect(0, "report", "operator right @ --number 7 --give report --give sell");
  expect(0, "sell", "operator right @ --number 8 --take report --give sell");
  expect(0, "7\t张三\tsell,report\n8\t张三\tsell\n", "operator list @");
  EXPECT_EQ(value("select count(*) as value from operator_rights"), "3");
  execute("insert into sell (sell_time, operator_id) values ('2026-11-22 09:00:00', 7)");
  expect(1, "没结的单据", "operator remove @ --number 7");
  expect(0, "", "operator remove @ --number 8");
  EXPECT_FALSE(canLogIn("8", "秘密"));
}

TEST_F(CommandTest, ParametersAreSetAllOrNone) {
  expect(0, "", "param set @ ShopName=惠邻=便利店 PointUnit=5");
  for (const std::string bad : {"PointUnit=many", "Colour=1", "ShopName"})
    expect(1, bad, "param set @ ShopName=别的 " + bad);
  expect(0, "ShopName=惠邻=便利店\n", "param list @");
  EXPECT_THAT(out, HasSubstr("PointUnit=5\n"));
  for (const std::string bad : {"Colour", "Journal"})
    expect(1, bad, "param unset @ ShopName " + bad);
  expect(0, "", "param unset @ pointunit");
  expect(0, "ShopName=惠邻=便利店\n", "param list @");
  EXPECT_THAT(out, HasSubstr("PointUnit=10\t"));
}

TEST_F(CommandTest, AReportGoesToThePeriodsFileOrTheStandardOutput) {
  expect(0, "2026-11-01 至 2026-11-22", "report @");
  const std::string file = folder.file("r.html");
  expect(0, "已写到 " + file + "\n",
         "report @ --from 1031 --to=2026-11-01 --format=html --out " + file);
  EXPECT_TRUE(std::filesystem::exists(file));
  expect(1, "不是日期", "report @ --from 11-31");
  expect(1, "--to", "report @ --from 2026-11-02 --to 2026-11-01");
  expect(1, "--out", "report @ --format=xlsx --out -");
  expect(1, "数据文件本身", "report @ --out " + shop);
  expect(0, "", "check @");
}
