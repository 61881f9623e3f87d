#include <gmock/gmock.h>
#include <sys/resource.h>

#include <csignal>
#include <fstream>

#include "TemporaryFolder.h"
#include "backups/BackupFolder.h"
#include "backups/BackupKeeper.h"
#include "backups/Generations.h"
#include "backups/MediumCopy.h"
#include "base/FileError.h"
#include "store/Connection.h"
#include "store/DataFile.h"

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;

namespace {

constexpr Date kMonday{2026, 11, 23};

std::vector<Date> days(std::initializer_list<int> fromMonday) {
  std::vector<Date> dates;
  for (const int day : fromMonday) dates.push_back(plusDays(kMonday, day));
  return dates;
}

TEST(GenerationsTest, SevenDaysAndTheLastDayOfFourWeeksStayWhateverTheClockSays) {
  struct {
    const char* what;
    std::vector<Date> existing;
    int today;
    std::vector<Date> goes;
  } const cases[] = {
      {"few", days({0, -1, -2, -3, -4, -5, -6}), 0, {}},
      {"the eighth is its week's last", days({0, -1, -2, -3, -4, -5, -6, -7}), 0, {}},
      {"a day that its week's next one follows", days({1, 0, -1, -2, -3, -4, -5, -6, -7}), 1,
       days({-7})},
      {"the fifth week", days({0, -1, -2, -3, -4, -5, -6, -8, -15, -22, -29, -36}), 0, days({-36})},
      {"a shop open once a month", days({0, -30, -60, -90, -120, -150, -180, -210, -240}), 0, {}},
      {"a year ahead", days({365, 0, -1, -2, -3, -4, -5, -6, -8}), 365, {}},
      {"the clock is right again", days({365, 1, 0, -1, -2, -3, -4, -5, -6}), 1, {}},
      {"back by years", days({-2000, 0, -1, -2, -3, -4, -5, -6, -7, -8}), -2000, {}},
  };
  for (const auto& each : cases)
    EXPECT_EQ(supersededGenerations(each.existing, plusDays(kMonday, each.today)), each.goes)
        << each.what;
  EXPECT_TRUE(mayMakeGeneration(days({0, -1}), kMonday));
  EXPECT_TRUE(mayMakeGeneration(days({1, -1}), kMonday));
  EXPECT_FALSE(mayMakeGeneration(days({1, 0}), kMonday)) << "today's may be an earlier state";
}

class BackupKeeperTest : public testing::Test {
 protected:
  BackupKeeper keeper(const fs::path& medium = {}) {
    using namespace std::chrono_literals;
    return {*books_, medium, [this] { return DateTime{today_, 9, 0, 0}; }, 0s, 0s};
  }
  static void lookUntilNews(BackupKeeper& backups) {
    for (int seconds = 0; seconds < 60; ++seconds) {
      if (backups.look(std::chrono::seconds(1))) return;
    }
    FAIL() << "no backup within a minute";
  }
  std::int64_t linesIn(const fs::path& file) const {
    Connection copy({file, ""}, Connection::Mode::kExisting);
    Rows rows = copy.query("select count(*) as n from sellProducts");
    rows.next();
    return rows.whole("n").value();
  }
  void ring() {
    books_->run(
        "insert into sellProducts (sellId, insert_Date, bm, amount, price, discount, money)"
        " values (1, '2026-11-23 09:00:00', ?, 1, 1, 1, 1)",
        std::string(3000, 'x'));
  }

  TemporaryFolder folder_;
  fs::path shopFile_ = folder_.path() / "data/POS.mdb";
  std::unique_ptr<Connection> books_ = [this] {
    fs::create_directory(shopFile_.parent_path());
    return createDataFile({shopFile_, ""});
  }();
  BackupFolder here_ = BackupFolder::beside(shopFile_);
  Date today_ = kMonday;
};

TEST_F(BackupKeeperTest, ADaysBackupIsOneStateOfTheBooksHoweverMuchIsSoldMeanwhile) {
  for (int i = 0; i < 100; ++i) ring();
  BackupKeeper backups = keeper();
  EXPECT_EQ(backups.age(), std::nullopt);
  int meanwhile = 0;
  for (; !backups.look() && meanwhile < 100; ++meanwhile) ring();
  if (backups.isRunning()) lookUntilNews(backups);
  EXPECT_EQ(backups.state().fault, "");
  EXPECT_EQ(backups.age(), 0);
  const std::int64_t first = linesIn(here_.file(today_));
  EXPECT_GE(first, 100);
  EXPECT_LE(first, 100 + meanwhile);
  EXPECT_EQ(fs::status(here_.file(today_)).permissions(), fs::perms(0600));
  lookUntilNews(backups);
  EXPECT_EQ(linesIn(here_.file(today_)), first) << "one a day while the till sells";
  std::ofstream(here_.file(today_).string() + ".a1b2c3-wal") << "a kill left this";
  backups.makeAnew();
  lookUntilNews(backups);
  EXPECT_EQ(linesIn(here_.file(today_)), 100 + meanwhile);
  EXPECT_EQ(std::distance(fs::directory_iterator(here_.path()), {}), 1);
  today_ = plusDays(today_, 3);
  EXPECT_EQ(backups.age(), 3);
}

TEST_F(BackupKeeperTest, WithoutABackupTheDaysAtRiskBeginWithTheFirstBill) {
  {
    const BackupKeeper newShop = keeper();
    today_ = plusDays(kMonday, 1);
    EXPECT_EQ(newShop.daysAtRisk(), 1) << "sold today, and no backup tomorrow";
  }
  EXPECT_EQ(keeper().daysAtRisk(), 0);
  for (const char* time : {"2026-11-20 09:00:00", "2026-11-23 09:00:00"})
    books_->run("insert into sell (sell_time, operator_id) values (?, 1)", std::string(time));
  BackupKeeper backups = keeper();
  EXPECT_EQ(backups.daysAtRisk(), 4);
  lookUntilNews(backups);
  EXPECT_EQ(backups.daysAtRisk(), 0);
}

TEST_F(BackupKeeperTest, WhatIsNotWholeOrNotTheOpenFileReplacesNothing) {
  fs::create_directory(here_.path());
  const auto refuse = [&](const char* why) {
    std::ofstream(here_.file(today_)) << "yesterday's, by another clock";
    BackupKeeper backups = keeper();
    backups.makeAnew();
    if (backups.isRunning()) lookUntilNews(backups);
    EXPECT_THAT(backups.state().fault, HasSubstr(why));
    EXPECT_EQ(fs::file_size(here_.file(today_)), 29U) << why;
  };
  std::ofstream(here_.file(plusDays(today_, 1))) << "tomorrow's";
  refuse("请检查电脑的日期");
  fs::remove(here_.file(plusDays(today_, 1)));
  books_->run("insert into stock values (?, 1)", std::string(40'000, 'x'));
  books_->checkpoint();
  {
    std::fstream file(shopFile_, std::ios::in | std::ios::out | std::ios::binary);
    file.seekp(-8192, std::ios::end);
    file << "a scratch on the disk";
  }
  refuse("损坏");
  fs::rename(shopFile_, folder_.path() / "moved");
  std::ofstream(shopFile_) << "another's";
  refuse("");
}

TEST_F(BackupKeeperTest, TheMediumGetsEachBackupWhenItIsThere) {
  const fs::path mounted = fs::path("/dev/shm") / folder_.path().filename();
  for (const fs::path& absent : {mounted, folder_.path()}) {
    BackupKeeper backups = keeper(absent);
    lookUntilNews(backups);
    EXPECT_THAT(backups.state().mediumFault, HasSubstr("没有接上"));
    EXPECT_EQ(backups.age(), 0) << "the sale's own disk has one";
  }
  fs::create_directory(mounted);
  BackupKeeper backups = keeper(mounted);
  lookUntilNews(backups);
  EXPECT_EQ(backups.state().mediumFault, "");
  EXPECT_THAT(backups.state().onMedium, ElementsAre(today_));
  EXPECT_EQ(linesIn(BackupFolder(mounted, shopFile_).file(today_)), 0);
  fs::remove_all(mounted);
}

TEST_F(BackupKeeperTest, AFullMediumKeepsItsEarlierBackup) {
  const fs::path original = folder_.path() / "today", medium = folder_.path() / "medium";
  std::ofstream(original) << std::string(1'000'000, 'x');
  std::ofstream(medium) << "earlier";
  std::signal(SIGXFSZ, SIG_IGN);
  rlimit old{};
  getrlimit(RLIMIT_FSIZE, &old);
  const rlimit small{500'000, old.rlim_max};
  setrlimit(RLIMIT_FSIZE, &small);
  EXPECT_THROW(static_cast<void>(copyToMedium(original, medium, [] { return false; })), FileError);
  setrlimit(RLIMIT_FSIZE, &old);
  EXPECT_EQ(fs::file_size(medium), 7U);
  EXPECT_FALSE(copyToMedium(original, medium, [] { return true; }));
  EXPECT_EQ(fs::file_size(medium), 7U);
  EXPECT_TRUE(copyToMedium(original, medium, [] { return false; }));
  EXPECT_EQ(fs::file_size(medium), 1'000'000U);
}

}  // namespace
