#include <algorithm>
#include <random>
#include <sstream>

#include "ShopModel.h"
#include "TillFixture.h"
#include "base/NumberText.h"
#include "returns/Returns.h"
#include "saleslib/TopUpBooks.h"

/// A cashier who does anything in any order, at the till and in the model at once. Every step takes
/// its figures from the random numbers of its sequence.
class BooksTest : public TillFixture {
 protected:
  struct Goods {
    const char *code, *item;
    std::int64_t ratio, price, memberPrice, percent;
  };
  static constexpr Goods kGoods[] = {{kWater, "1001", 1, 250, 220, 100},
                                     {kCrate, "1001", 12, 2800, 0, 100},
                                     {kApples, "1005", 1, 598, 0, 100},
                                     {"6900000000043", "1002", 1, 1250, 1195, 90}};

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
      insert into tmda (sptm, spbm, spmc, xsdj, pfj, zk, dwbl) values
        ('6900000000043', '1002', '花茶', 12.5, 11.95, 0.9, 1);
      insert into stock values ('1005', 80);
      delete from member;
      insert into member (bh, name, phone, discount, card, password, join_date) values
        ('8001', '王芳', '13800000001', Null, 88.5, 'Pw1', '2026-01-02 00:00:00'),
        ('8002', '李明', '13800000002', 0.95, 300, 'Pw2', '2026-01-02 00:00:00');
    )");
    setParameter("PointUnit", "100");
    till.question = "会员卡输入会员卡号或电话：";
    shop.stock = {{"1001", 1000}, {"1002", 500}, {"1005", 800}};
    shop.members = {{"8001", "Pw1", 100, 8850}, {"8002", "Pw2", 95, 30000}};
    switchOn();
  }

  /// What the till does at its start, also after a power cut: every open bill is voided.
  void switchOn() {
    till_ = std::make_unique<SaleSession>(pos, till, SaleSession::Openers());
    ASSERT_TRUE(till_->open());
    shop.drop();
    shop.voidBill(shop.bill);
    for (ShopModel::Bill& held : shop.held) shop.voidBill(held);
    shop.held.clear();
  }
  std::int64_t any(std::int64_t from, std::int64_t to) {
    return from + static_cast<std::int64_t>(random_() % static_cast<std::uint32_t>(to - from + 1));
  }
  template <class List>
  auto& anyOf(List& list) {
    return list[static_cast<std::size_t>(any(0, static_cast<std::int64_t>(std::size(list)) - 1))];
  }
  void key(int code) { static_cast<void>(till_->key(code, till.text)); }
  void confirm(const std::string& typed) {
    till_->textComing(till.text);
    till.text = QString::fromStdString(typed);
    key(13);
  }

  void ring() {
    const Goods& goods = anyOf(kGoods);
    confirm(goods.code);
    ShopModel::Line line{goods.item, goods.ratio, goods.price, goods.percent};
    if (shop.bill.member >= 0 && goods.memberPrice > 0) {
      line.price = goods.memberPrice;
      line.percent = shop.members[static_cast<std::size_t>(shop.bill.member)].percent;
    }
    shop.ring(line);
  }
  void correct() {
    if (!shop.entered) return;
    const std::int64_t quantity = any(1, 40);
    key(kUp);
    confirm(ShopModel::number(quantity, 10));
    if (!till_->sale().onEntryRow()) key(kDown);
    shop.correct(quantity);
  }
  void removeLine() {
    key(kF4);
    shop.drop();
  }
  void attach() {
    const auto member = static_cast<int>(any(-1, 1));
    const QString number = any(0, 1) ? "800%1" : "1380000000%1";
    till.answers = {member < 0 ? QString() : number.arg(member + 1)};
    key(kF2);
    if (shop.empty()) shop.bill.member = member;
  }
  void suspend() {
    key(kF5);
    if (!shop.empty()) shop.suspend();
  }
  void recall() {
    if (shop.held.empty()) return;
    till.choice = static_cast<int>(any(0, static_cast<std::int64_t>(shop.held.size()) - 1));
    key(kF6);
    if (shop.empty()) shop.recall(static_cast<std::size_t>(till.choice));
    till.choice = -1;
  }
  void cancel() {
    key(kF12);
    if (shop.empty()) return;
    shop.drop();
    shop.voidBill(shop.bill);
  }
  void settle() {
    till.pay = [](Settlement& payment) { payment.confirmCash(payment.cashText()); };
    key(kF1);
    if (shop.empty()) return;
    shop.commit();
    shop.settle();
  }
  void settleByCard() {
    ShopModel::Member& payer = anyOf(shop.members);
    till.pay = [&payer](Settlement& payment) {
      if (payment.payByCard(QString::fromStdString(payer.card),
                            QString::fromStdString(payer.password)) == CardOutcome::kDone) {
        payment.sayCardPaid();
      }
    };
    key(kF1);
    if (shop.empty()) return;
    shop.commit();
    if (payer.balance < shop.bill.money()) return;
    payer.balance -= shop.bill.money();
    shop.paidByCard += shop.bill.money();
    shop.settle();
  }
  void takeBack() {
    if (shop.settled.empty()) return;
    ShopModel::Bill& sold = anyOf(shop.settled);
    ShopModel::Line& line = anyOf(sold.lines);
    const auto position = static_cast<std::size_t>(&line - sold.lines.data());
    const std::int64_t quantity = std::min(any(1, 20), line.quantity);
    if (quantity == 0) return;
    const std::int64_t refund = shop.takeBack(sold, line, quantity);
    Returns returns(pos.returnBooks());
    ASSERT_EQ(returns.load(QString::number(sold.number)), "");
    returns.chooseById(returns.bill()->Items().at(position)->Id());
    const double typed =
        returns.quantityOf(QString::fromStdString(ShopModel::number(quantity, 10)));
    EXPECT_EQ(returns.takeBack(typed, Currency::fromScaled(refund * 100)), "");
  }
  void topUp() {
    ShopModel::Member& member = anyOf(shop.members);
    const std::int64_t amount = any(1, 9000);
    shop.topUp(member, amount);
    pos.topUpBooks().store({member.card, Currency::fromScaled(amount * 100),
                            Currency::fromScaled(amount * 100),
                            Currency::fromScaled(member.balance * 100), "",
                            Currency::fromScaled((member.balance - amount) * 100)});
  }
  /// The owner counts the goods and writes down what is there, which may be less than was thought.
  void countStock() {
    const char* item = anyOf(kGoods).item;
    const std::int64_t quantity = any(-200, 1500);
    shop.stock[item] = quantity;
    pos.gConn->run("update stock set quantity = ? where spbm = ?",
                   static_cast<double>(quantity) / 10, std::string(item));
  }

  /// Stock, members, and the open bills with their lines.
  std::string fileNow() {
    return stored(
        "(select group_concat(spbm || ' ' || quantity, '; ') from"
        " (select * from stock order by spbm)) || '; ' ||"
        "(select group_concat(bh || ' ' || card || ' ' || total_spent || ' ' || points, '; ') from"
        " (select * from member order by bh)) || '; ' ||"
        "(select group_concat(bill || coalesce(' ' || bm || ' ' || amount || ' ' || money, ''),"
        " '; ') from (select s.id as bill, l.* from sell s left join sellProducts l"
        " on l.sellId = s.id where operator_id = 1 and state = 0 order by s.id, l.id)) as v");
  }
  std::string modelNow() {
    const auto tenths = [](std::int64_t value) { return ShopModel::number(value, 10); };
    const auto money = [](std::int64_t value) { return ShopModel::number(value, 100); };
    std::string all;
    for (const auto& [item, quantity] : shop.stock) all += "; " + item + " " + tenths(quantity);
    for (const ShopModel::Member& each : shop.members) {
      all += "; " + each.card + " " + money(each.balance) + " " + money(each.spent) + " " +
             std::to_string(each.points);
    }
    std::vector<ShopModel::Bill> open = shop.held;
    open.push_back(shop.bill);
    if (shop.entered) open.back().lines.push_back(*shop.entered);
    std::ranges::sort(open, {}, &ShopModel::Bill::number);
    for (const ShopModel::Bill& each : open) {
      const std::string number = "; " + std::to_string(each.number);
      if (each.lines.empty()) all += number;
      for (const ShopModel::Line& line : each.lines) {
        all += number + " " + line.item + " " + tenths(line.quantity) + " " + money(line.money());
      }
    }
    return all.substr(2);
  }

  /// The bill as the cashier sees it.
  std::string rowsOnTheScreen() {
    std::string all;
    for (const auto& row : till.rows) {
      all +=
          row[BillRow::kSpCode] + " " + row[BillRow::kQuantity] + " " + row[BillRow::kMoney] + "; ";
    }
    return all;
  }
  std::string rowsInTheModel() {
    std::vector<ShopModel::Line> lines = shop.bill.lines;
    if (shop.entered) lines.push_back(*shop.entered);
    std::string all;
    for (const ShopModel::Line& line : lines) {
      all += line.item + " " + ShopModel::number(line.quantity, 10) + " " +
             twoDecimals(Currency::fromScaled(line.money() * 100)) + "; ";
    }
    return all + "  ; ";  // the entry row
  }

  /// Everything that was ever settled, returned and loaded onto cards, in tenths and fen.
  std::string fileTotals() {
    return stored(
               "printf('%d %.0f %.0f %.0f', count(*), total(goods_amount) * 100,"
               " total(amount) * 100, total(card_pay) * 100) as v from sell where state = 1") +
           stored(
               "printf(' | %.0f %.0f', total(l.amount) * 10, total(money) * 100) as v"
               " from sellProducts l join sell s on l.sellId = s.id where state = 1") +
           stored(
               "printf(' | %d %.0f %.0f', count(*), total(quantity) * 10, total(money) * 100)"
               " as v from un_sell") +
           stored("printf(' | %d %.0f', count(*), total(addmoney) * 100) as v from cardStored");
  }
  std::string modelTotals() const {
    std::int64_t quantity = 0, money = 0;
    for (const ShopModel::Bill& bill : shop.settled) {
      for (const ShopModel::Line& line : bill.lines) quantity += line.quantity;
      money += bill.money();
    }
    std::ostringstream totals;
    totals << shop.settled.size() << ' ' << money << ' ' << money << ' ' << shop.paidByCard << " | "
           << quantity << ' ' << money << " | " << shop.returns << ' ' << shop.returned << ' '
           << shop.refunded << " | " << shop.topUps << ' ' << shop.credited;
    return totals.str();
  }

  void step() {
    struct Step {
      const char* name;
      void (BooksTest::*act)();
    };
    static constexpr Step kSteps[] = {
        {"ring", &BooksTest::ring},       {"ring", &BooksTest::ring},
        {"ring", &BooksTest::ring},       {"ring", &BooksTest::ring},
        {"ring", &BooksTest::ring},       {"correct", &BooksTest::correct},
        {"suspend", &BooksTest::suspend}, {"suspend", &BooksTest::suspend},
        {"recall", &BooksTest::recall},   {"recall", &BooksTest::recall},
        {"cancel", &BooksTest::cancel},   {"settle", &BooksTest::settle},
        {"settle", &BooksTest::settle},   {"pay by card", &BooksTest::settleByCard},
        {"attach", &BooksTest::attach},   {"take back", &BooksTest::takeBack},
        {"top up", &BooksTest::topUp},    {"remove", &BooksTest::removeLine}};
    // Rare ones, so that bills have time to grow.
    static constexpr Step kRare[] = {{"power cut", &BooksTest::switchOn},
                                     {"count stock", &BooksTest::countStock}};
    const auto& [name, act] = any(0, 19) == 0 ? anyOf(kRare) : anyOf(kSteps);
    steps_ += std::string(", ") + name;
    (this->*act)();
  }

  inline static QByteArray temporary_;
  ShopModel shop;
  std::mt19937 random_;
  std::string steps_;  ///< of the sequence at hand
  std::unique_ptr<SaleSession> till_;
};

TEST_F(BooksTest, stockCardAndMemberBooksBalanceWhateverTheCashierDoes) {
  constexpr std::uint32_t kSequences = 1000;
  constexpr int kStepsEach = 12;
  for (std::uint32_t seed = 1; seed <= kSequences && !HasFailure(); ++seed) {
    random_.seed(seed);
    steps_ = "sequence " + std::to_string(seed);
    if (seed % 10 == 1) {
      shop.mayGoNegative = !shop.mayGoNegative;
      setParameter("StockRule", shop.mayGoNegative ? "0" : "1");
    }
    if (seed % 5 == 0) countStock();
    for (int i = 0; i < kStepsEach && !HasFailure(); ++i) {
      step();
      shop.bill.number = till_->sale().bill()->BillNo();
      ASSERT_EQ(fileNow(), modelNow()) << steps_;
      ASSERT_EQ(rowsOnTheScreen(), rowsInTheModel()) << steps_;
    }
    ASSERT_EQ(fileTotals(), modelTotals()) << steps_;
  }
  EXPECT_GT(shop.settled.size(), 500U);
  EXPECT_GT(shop.returns, 300);
  EXPECT_GT(shop.refusedAtRecall, 10);
}
