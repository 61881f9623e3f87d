#include <fcntl.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>

#include "StoreFixture.h"
#include "store/DataFileLock.h"
#include "store/Schema.h"
#include "store/Transaction.h"

namespace fs = std::filesystem;
using testing::HasSubstr;

namespace {

std::string pragma(Connection& connection, const std::string& name) {
  Rows rows = connection.query(("pragma " + name).c_str());
  return rows.next() ? rows.text(name) : "";
}
std::string contents(const fs::path& path) {
  if (!fs::is_regular_file(path)) return "";
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

class OpeningTest : public testing::Test {
 protected:
  void write(const std::string& name, const std::string& bytes) {
    std::ofstream(folder.file(name), std::ios::binary) << bytes;
  }
  TemporaryFolder folder;
  DataSource source{folder.file("pos.mdb"), kBuiltInPassword};
};

TEST_F(OpeningTest, ReadsTheConnectionText) {
  const std::pair<const char*, const char*> cases[] = {
      {" C:\\data\\POS.mdb ", "C:\\data\\POS.mdb|"},
      {"p.mdb;Jet OLEDB:Database pasword=secret", "p.mdb|"},
      {"p.mdb;JET oledb:database PASSWORD= a;b=c", "p.mdb| a;b=c"}};
  for (const auto& [text, read] : cases) {
    const DataSource parsed = DataSource::parse(text);
    EXPECT_EQ(parsed.path.string() + "|" + parsed.password, read);
  }
}

TEST_F(OpeningTest, ANewFileIsDurableEncryptedAndItsOwnersAlone) {
  for (const bool isNew : {true, false}) {
    const auto shop =
        isNew ? createDataFile(source) : openDataFile({folder.file("POS.MDB"), kBuiltInPassword});
    if (isNew) shop->run("insert into stock values ('kept', 2)");
    EXPECT_EQ(pragma(*shop, "journal_mode"), "wal");
    EXPECT_EQ(pragma(*shop, "synchronous"), "2");
    for (const char* name : {"pos.mdb", "pos.mdb-wal", "pos.mdb-shm"})
      EXPECT_EQ(fs::status(folder.file(name)).permissions(), fs::perms(0600)) << name;
    EXPECT_EQ(protectDataFile("/proc/self/status").size(), 1U) << "not even the superuser may";
    EXPECT_NO_THROW(shop->checkpoint());
    EXPECT_THAT([&] { createDataFile(source); }, refusal("不会覆盖"));
    EXPECT_EQ(shop->Open("select * from stock").count(), 1U);
  }
  EXPECT_EQ(contents(source.path).find("SQLite"), std::string::npos);
}

TEST_F(OpeningTest, SaysWhyAFileCannotBeOpenedAndLeavesItAsItIs) {
  for (const char* empty : {"empty.mdb", "foreign.mdb"}) write(empty, "");
  write("noise.mdb", std::string(8192, '\x5a'));
  fs::create_directory(folder.file("folder.mdb"));
  createDataFile({folder.file("secret.mdb"), "right"});
  createDataFile({folder.file("plain.mdb"), ""});
  Connection({folder.file("foreign.mdb"), ""}, Connection::Mode::kExisting)
      .runScript("create table customers (name); pragma user_version = 1");

  const std::tuple<const char*, const char*, const char*> cases[] = {
      {"nofolder/pos.mdb", "", "找不到数据文件"},
      {"folder.mdb", "", "文件夹"},
      {"empty.mdb", "", "不是本系统的数据文件"},
      {"noise.mdb", "", "不是数据文件"},
      {"secret.mdb", "", "密码不对"},
      {"secret.mdb", "Right", "密码不对"},
      {"plain.mdb", "right", "没有密码"},
      {"foreign.mdb", "", "不是本系统的数据文件"}};
  for (const auto& [name, password, why] : cases) {
    const std::string path = folder.file(name), before = contents(path);
    EXPECT_THAT(([&, password = password] {
                  openDataFile({path, password});
                }),
                testing::ThrowsMessage<StoreError>(AllOf(HasSubstr(why), HasSubstr(path))));
    EXPECT_EQ(contents(path), before) << name;
  }
}

TEST_F(OpeningTest, BringsAnOlderFileUpToDateInOneTransactionAndRefusesANewerOne) {
  const std::string mark = pragma(*createDataFile({folder.file("new.mdb"), ""}), "application_id");
  // The table that is already there makes the first step fail in its middle.
  write("pos.mdb", "");
  Connection older(source, Connection::Mode::kExisting);
  older.runScript("create table stock (spbm); pragma application_id = " + mark);
  EXPECT_THAT([&] { openDataFile(source); }, refusal("table stock already exists"));
  EXPECT_EQ(older.Open("select * from sqlite_master").count(), 1U)
      << "a failed upgrade left some of its tables";
  EXPECT_EQ(pragma(older, "user_version"), "0");
  older.runScript("drop table stock;" + schemaSteps().front() +
                  "insert into cardStored (cardbh, addmoney, inMoney, commerce)"
                  " values ('1', 1, 1, 1); pragma user_version = 1");
  EXPECT_EQ(openDataFile(source)->Open("select * from cardStored where complete = 1").count(), 1U)
      << "nobody is told of a top-up from before there was a mark";
  older.runScript("pragma user_version = 1000");
  EXPECT_THAT([&] { openDataFile(source); }, refusal("更新版本"));
}

TEST_F(OpeningTest, AFileIsThereOnlyWhenItIsWhole) {
  const auto failing = [&](Connection& made) {
    made.run("insert into stock values ('begun', 2)");
    EXPECT_TRUE(fs::is_empty(folder.path())) << "a kill would leave it behind";
    throw StoreError("no more");
  };
  EXPECT_THAT([&] { createDataFile(source, failing); }, refusal("no more"));
  EXPECT_TRUE(fs::is_empty(folder.path()));
  write("pos.mdb-wal", "an old log");
  EXPECT_THAT([&] { createDataFile(source); }, refusal("mdb-wal"));
}

// The engine's own lock tells other programs that the log is in use. Another connection of the same
// program, as the sales query has one, must not give it up.
TEST_F(OpeningTest, OneTillHoldsAFileWhileOthersMayRead) {
  EXPECT_THAT([&] { DataFileLock lock(source.path); }, refusal("找不到数据文件"));
  createDataFile(source);
  const int file = open(source.path.c_str(), O_RDWR | O_CLOEXEC);
  {
    const DataFileLock till(source.path);
    fs::create_symlink(source.path, folder.file("link.mdb"));
    EXPECT_THAT([&] { DataFileLock second(folder.file("LINK.mdb")); }, refusal("已经打开"));
    const auto selling = openDataFile(source);
    openDataFile(source);
    struct flock engines {};
    engines.l_type = F_WRLCK;
    engines.l_start = 0x40000002;
    engines.l_len = 510;
    ASSERT_EQ(fcntl(file, F_OFD_GETLK, &engines), 0);
    EXPECT_EQ(engines.l_type, F_RDLCK) << "the last one to close would delete the till's log";
  }
  EXPECT_NO_THROW(DataFileLock(source.path));
  close(file);
}

TEST_F(OpeningTest, NothingIsWrittenToAFileThatLostItsName) {
  source.password = "";
  const auto till = createDataFile(source);
  const std::string other = folder.file("other.mdb");
  const auto refuses = [&](const char* why) {
    EXPECT_THAT([&] { till->Execute("delete from stock"); }, refusal(why));
    EXPECT_THAT([&] { Transaction begun(*till); }, refusal(why));
  };
  fs::create_hard_link(source.path, other);
  refuses("硬链接");
  EXPECT_THAT([&] { openDataFile({other, ""}); }, refusal("硬链接"));
  fs::remove(source.path);
  refuses("删除");
  write("pos.mdb", contents(other));
  refuses("换成了");
  fs::rename(other, source.path);
  EXPECT_NO_THROW(till->Execute("delete from stock"));
}

}  // namespace
