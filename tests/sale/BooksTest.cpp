#include <random>

#include "BookFaults.h"
#include "WatchedTill.h"
#include "returns/Returns.h"
#include "saleslib/TopUpBooks.h"

/// A cashier who does anything in any order. Whatever it was, nothing came from nowhere: stock with
/// the goods on bills, cards with what they paid and were loaded with, purchases with the bills.
class BooksTest : public WatchedTill {
 protected:
  // Ten thousand durable writes can wait for the disk most of a minute: the till's folder lies in
  // memory where the machine has a place for that.
  static void SetUpTestSuite() {
    temporary_ = qgetenv("TMPDIR");
    if (std::filesystem::is_directory("/dev/shm")) qputenv("TMPDIR", "/dev/shm");
  }
  static void TearDownTestSuite() {
    temporary_.isNull() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", temporary_);
  }

  BooksTest() {
    pos.gConn->runScript(R"(
      delete from tmda where xsdj = 'x';
      insert into spda (f_spbm) select distinct spbm from tmda;
      insert into stock values ('1005', 80), ('1003', 40), ('2001', 10);
      update member set card = 900, discount = 0.95;
    )");
    setParameter("PointUnit", "100");
  }

  std::int64_t any(std::int64_t from, std::int64_t to) {
    return from + static_cast<std::int64_t>(random_() % static_cast<std::uint32_t>(to - from + 1));
  }

  /// What no step may change: stock with the goods on bills, the card with what it paid and was
  /// loaded with, the member's purchases less the settled bills.
  std::string kept() {
    return stored(
        "(select group_concat(spbm || ' ' || round(quantity + (select total(amount * ratio)"
        " from sellProducts where bm = spbm), 6), '; ') from stock) || '; ' ||"
        " round(card + (select total(card_pay) from sell) - (select total(addmoney)"
        " from cardStored), 4) || '; ' || round(total_spent - (select total(amount) from sell"
        " where member_id <> 0 and state = 1), 4) as v from member");
  }
  double missingStock() { return std::stod(stored("total(min(quantity, 0)) as v from stock")); }
  std::string linesOnTheScreen() const {
    std::string all;
    for (const auto& row : till.rows) {
      if (row[BillRow::kSpCode].empty()) continue;
      all +=
          row[BillRow::kSpCode] + " " + row[BillRow::kQuantity] + " " + row[BillRow::kMoney] + ";";
    }
    return all;
  }
  std::string linesInTheFile() {
    return stored(
        "coalesce(group_concat(bm || ' ' || amount || ' ' || printf('%.2f;', money), ''),"
        " '') as v from (select * from sellProducts where sellId = " +
        std::to_string(bill().BillNo()) + " order by id)");
  }

  void takeBack() {
    const std::string lines = " from sellProducts l join sell s on sellId = s.id where state = 1";
    const std::int64_t count = std::stoll(stored("count(*) as v" + lines));
    if (count == 0) return;
    const std::string line =
        lines + " order by l.id limit 1 offset " + std::to_string(any(0, count - 1));
    Returns returns(pos.returnBooks());
    EXPECT_EQ(returns.load(QString::fromStdString(stored("s.id as v" + line))), "");
    returns.chooseById(std::stoi(stored("l.id as v" + line)));
    const double quantity = returns.quantityOf("999");
    if (quantity == 0) return;  // all of it has come back
    EXPECT_EQ(returns.takeBack(quantity, returns.worth(quantity)).toStdString(), "");
  }
  void topUp() {
    const Currency sum = Currency::fromScaled(any(1, 9000) * 100);
    const Currency held = Currency::parse(stored("card as v from member")).value();
    pos.topUpBooks().store({"8001", sum, sum, held + sum, "", held});
  }

  void step(const QString& word) {
    if (word == "return") return takeBack();
    if (word == "load") return topUp();
    const auto held = static_cast<std::int64_t>(session.sale().held().size());
    if (word.startsWith("F6") && held == 0) return;
    work(word.startsWith("F6") ? "F6@" + QString::number(any(0, held - 1)) : word);
  }

  inline static QByteArray temporary_;
  std::mt19937 random_;
};

TEST_F(BooksTest, NothingComesFromNowhereWhateverTheCashierDoes) {
  constexpr std::uint32_t kSequences = 1000;
  constexpr int kStepsEach = 12;
  const QStringList steps =
      QString(
          "water crate apples QB-01 several@1 Up+3 Up+0.1 Up+2.7 Up+Right+0.85 F4 F5 F5 F6 F6"
          " F12 F1 F1 F1:99 F1:储值卡 F2:8001 F2: return load")
          .split(' ');
  int refusedAtRecall = 0;
  for (std::uint32_t seed = 1; seed <= kSequences && !HasFailure(); ++seed) {
    random_.seed(seed);
    if (seed % 10 == 1) setParameter("StockRule", seed % 20 == 1 ? "1" : "0");
    if (seed % 5 == 0) {
      pos.gConn->run("update stock set quantity = ?", static_cast<double>(any(-100, 150)) / 10);
    }
    const std::string before = kept();
    QString trace = "sequence " + QString::number(seed);
    for (int i = 0; i < kStepsEach && !HasFailure(); ++i) {
      const double missing = missingStock();
      const QString& act = steps[static_cast<qsizetype>(any(0, steps.size() - 1))];
      for (const QString& word : act.split('+')) step(word);
      trace += " " + act;
      ASSERT_EQ(kept(), before) << trace.toStdString();
      ASSERT_TRUE(missingStock() >= missing || pos.gSysParam.StockRule() == 0)
          << trace.toStdString();
      ASSERT_EQ(linesOnTheScreen(), linesInTheFile()) << trace.toStdString();
      for (const std::string& text : std::exchange(till.messages, {})) {
        refusedAtRecall += text.ends_with("已从本单中去掉。") ? 1 : 0;
      }
    }
  }
  EXPECT_EQ(bookFaults(*pos.gConn, pos.clock), "");
  EXPECT_GT(std::stoi(stored("count(*) as v from sell where state = 1")), 500);
  EXPECT_GT(std::stoi(stored("count(*) as v from un_sell")), 200);
  EXPECT_GT(refusedAtRecall, 10);
}
