#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>

#include "TemporaryFolder.h"
#include "store/Connection.h"
#include "store/DataFile.h"
#include "store/DataFileLock.h"
#include "store/Schema.h"
#include "store/StoreError.h"
#include "store/Transaction.h"

using testing::HasSubstr;
using testing::ThrowsMessage;

namespace {

std::string pragma(Connection& connection, const std::string& name) {
  Rows rows = connection.query(("pragma " + name).c_str());
  return rows.next() ? rows.text(name) : "";
}

unsigned permissions(const std::string& path) {
  struct stat status {};
  return stat(path.c_str(), &status) == 0 ? status.st_mode & 0777U : 0U;
}

std::string contents(const std::string& path) {
  if (!std::filesystem::is_regular_file(path)) return "";
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

class OpeningTest : public testing::Test {
 protected:
  void write(const std::string& name, const std::string& bytes) {
    std::ofstream(folder_.file(name), std::ios::binary) << bytes;
  }
  TemporaryFolder folder_;
};

TEST_F(OpeningTest, ReadsTheConnectionText) {
  const std::pair<const char*, const char*> cases[] = {
      {" C:\\data\\POS.mdb ", "C:\\data\\POS.mdb|"},
      {"p.mdb;Jet OLEDB:Database pasword=secret", "p.mdb|"},
      {"p.mdb;JET oledb:database PASSWORD= a;b=c", "p.mdb| a;b=c"}};
  for (const auto& [text, read] : cases) {
    const DataSource source = DataSource::parse(text);
    EXPECT_EQ(source.path.string() + "|" + source.password, read);
  }
}

TEST_F(OpeningTest, ANewFileIsDurableEncryptedAndItsOwnersAlone) {
  const DataSource source{folder_.file("pos.mdb"), kBuiltInPassword};
  {
    const auto made = createDataFile(source);
    made->run("insert into stock values ('kept', 2)");
    EXPECT_EQ(pragma(*made, "journal_mode"), "wal");
    EXPECT_EQ(pragma(*made, "synchronous"), "2");
    for (const char* name : {"pos.mdb", "pos.mdb-wal", "pos.mdb-shm"}) {
      EXPECT_EQ(permissions(folder_.file(name)), 0600U) << name;
    }
    EXPECT_EQ(protectDataFile("/proc/self/status").size(), 1U) << "not even the superuser may";
    EXPECT_NO_THROW(made->checkpoint());
  }
  EXPECT_EQ(contents(source.path).find("SQLite"), std::string::npos);
  const auto opened = openDataFile({folder_.file("POS.MDB"), kBuiltInPassword});
  EXPECT_EQ(pragma(*opened, "journal_mode"), "wal");
  EXPECT_EQ(pragma(*opened, "synchronous"), "2");
  EXPECT_EQ(opened->Open("select * from stock").count(), 1U);
  EXPECT_THAT([&] { createDataFile(source); }, ThrowsMessage<StoreError>(HasSubstr("不会覆盖")));
  EXPECT_EQ(opened->Open("select * from stock").count(), 1U);
}

TEST_F(OpeningTest, SaysWhyAFileCannotBeOpenedAndLeavesItAsItIs) {
  write("empty.mdb", "");
  write("noise.mdb", std::string(8192, '\x5a'));
  std::filesystem::create_directory(folder_.file("folder.mdb"));
  createDataFile({folder_.file("secret.mdb"), "right"});
  createDataFile({folder_.file("plain.mdb"), ""});
  write("foreign.mdb", "");
  Connection({folder_.file("foreign.mdb"), ""}, Connection::Mode::kExisting)
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
  for (const auto& [name, password, text] : cases) {
    const DataSource source{folder_.file(name), password};
    const std::string before = contents(source.path);
    EXPECT_THAT([&] { openDataFile(source); },
                ThrowsMessage<StoreError>(
                    testing::AllOf(HasSubstr(text), HasSubstr(source.path.string()))));
    EXPECT_EQ(contents(source.path), before) << name;
  }
}

TEST_F(OpeningTest, BringsAnOlderFileUpToDateInOneTransactionAndRefusesANewerOne) {
  const DataSource source{folder_.file("older.mdb"), kBuiltInPassword};
  const std::string mark = pragma(*createDataFile({folder_.file("new.mdb"), ""}), "application_id");
  // The table that is already there makes the first step fail in its middle.
  write("older.mdb", "");
  Connection(source, Connection::Mode::kExisting)
      .runScript("create table stock (spbm); pragma application_id = " + mark);
  EXPECT_THAT([&] { openDataFile(source); },
              ThrowsMessage<StoreError>(HasSubstr("table stock already exists")));
  {
    Connection older(source, Connection::Mode::kExisting);
    EXPECT_EQ(older.Open("select * from sqlite_master").count(), 1U)
        << "a failed upgrade left some of its tables";
    EXPECT_EQ(pragma(older, "user_version"), "0");
    older.runScript("drop table stock;" + schemaSteps().front() +
                    "insert into cardStored (cardbh, addmoney, inMoney, commerce)"
                    " values ('1', 1, 1, 1); pragma user_version = 1");
  }
  {
    const auto upgraded = openDataFile(source);
    EXPECT_EQ(upgraded->Open("select * from cardStored where complete = 1").count(), 1U)
        << "nobody is told of a top-up from before there was a mark";
    upgraded->runScript("pragma user_version = 1000");
  }
  EXPECT_THAT([&] { openDataFile(source); }, ThrowsMessage<StoreError>(HasSubstr("更新版本")));
}

TEST_F(OpeningTest, AFileIsThereOnlyWhenItIsWhole) {
  const DataSource source{folder_.file("pos.mdb"), kBuiltInPassword};
  const auto nothingLies = [&] { return std::filesystem::is_empty(folder_.path()); };
  const auto failing = [&](Connection& made) {
    made.run("insert into stock values ('begun', 2)");
    EXPECT_TRUE(nothingLies()) << "a kill would leave it behind";
    throw StoreError("no more");
  };
  EXPECT_THAT([&] { createDataFile(source, failing); }, ThrowsMessage<StoreError>("no more"));
  EXPECT_TRUE(nothingLies());
  write("pos.mdb-wal", "an old log");
  EXPECT_THAT([&] { createDataFile(source); }, ThrowsMessage<StoreError>(HasSubstr("mdb-wal")));
}

// The engine's own lock tells other programs that the log is in use. Another connection of the same
// program, as the sales query has one, must not give it up.
TEST_F(OpeningTest, OneTillHoldsAFileWhileOthersMayRead) {
  const DataSource source{folder_.file("pos.mdb"), kBuiltInPassword};
  EXPECT_THAT([&] { DataFileLock lock(source.path); },
              ThrowsMessage<StoreError>(HasSubstr("找不到数据文件")));
  createDataFile(source);
  const int file = open(source.path.c_str(), O_RDWR | O_CLOEXEC);
  {
    const DataFileLock till(source.path);
    std::filesystem::create_symlink(source.path, folder_.file("link.mdb"));
    EXPECT_THAT([&] { DataFileLock second(folder_.file("LINK.mdb")); },
                ThrowsMessage<StoreError>(HasSubstr("已经打开")));
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
  const DataSource source{folder_.file("pos.mdb"), ""};
  const auto till = createDataFile(source);
  const std::string other = folder_.file("other.mdb");
  const auto refuses = [&](const char* why) {
    EXPECT_THAT([&] { till->Execute("delete from stock"); },
                ThrowsMessage<StoreError>(HasSubstr(why)));
    EXPECT_THAT([&] { Transaction begun(*till); }, ThrowsMessage<StoreError>(HasSubstr(why)));
  };
  std::filesystem::create_hard_link(source.path, other);
  refuses("硬链接");
  EXPECT_THAT([&] { openDataFile({other, ""}); }, ThrowsMessage<StoreError>(HasSubstr("硬链接")));
  std::filesystem::remove(source.path);
  refuses("删除");
  write("pos.mdb", contents(other));
  refuses("换成了");
  std::filesystem::rename(other, source.path);
  EXPECT_NO_THROW(till->Execute("delete from stock"));
}

}  // namespace
