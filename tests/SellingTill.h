#pragma once

#include <gmock/gmock.h>

#include <filesystem>
#include <memory>
#include <random>
#include <string>
#include <utility>

#include "base/Failure.h"
#include "base/NumberText.h"
#include "saleslib/BillBooks.h"
#include "saleslib/ClsSysParam.h"
#include "saleslib/ReturnBooks.h"
#include "saleslib/ShopLink.h"
#include "saleslib/TopUpBooks.h"
#include "store/Connection.h"
#include "store/DataFile.h"
#include "store/Transaction.h"

/// A till without windows: the sale library at work on a data file of its own, with three goods of
/// which a thousand are in stock and two cards with 10,000 yuan each. Its file has no password.
class SellingTill {
 public:
  static constexpr int kStock = 1000, kBalance = 10'000;

  /// Makes the file where there is none.
  explicit SellingTill(const std::filesystem::path& file)
      : shop(std::filesystem::exists(file) ? openDataFile({file, ""})
                                           : createDataFile({file, ""}, fill)) {
    shop->setUser({.number = [] { return 1; }, .clock = localTime});
    rules_.Conn(*shop);
    cashier_->Init(*shop, 1);
  }

  /// What a till does at its start: completes what was paid.
  void begin() {
    static_cast<void>(books().completePaid());
    static_cast<void>(books().cancelOpen());
  }
  /// A bill of one or two lines, by that card or in cash. What the customer is shown: its number
  /// and what was due, four decimals.
  std::pair<int, std::string> sell(double quantity, const std::string& card = {}) {
    BillBooks all = books();
    const std::shared_ptr<ClsSell> bill = all.open();
    bill->setMemberId(card.empty() ? 0 : 1);
    ring(all, *bill, "A", "4.05", 1);
    ring(all, *bill, "B", "1.333", quantity);
    if (card.empty()) {
      bill->setCash(Currency::fromYuan(1000));
      ensure(all.markPaid(*bill).empty(), "a bill can be paid in cash");
    } else {
      bill->setCardNo(card);
      bill->setAmount(roundedToFen(bill->Amount()));
      bill->setCardPay(bill->Amount());
      ensure(all.payByCard(*bill, "1111").outcome == CardOutcome::kDone, "the card holds enough");
    }
    ensure(all.settle(*bill), "a paid bill is stored");
    return {bill->BillNo(), generalNumber(bill->Amount())};
  }
  void takeBack(int number, double quantity) {
    ReturnBooks returns(*shop, localTime, cashier_);
    const std::shared_ptr<ClsSell> bill = returns.find(number).bill;
    static_cast<void>(
        returns.takeBack(*bill, *bill->Items().back(), quantity, Currency::fromYuan(1)));
  }
  void topUp(const std::string& card, int yuan) {
    TopUpBooks all(*shop);
    const Currency before = all.card(card)->balance, more = Currency::fromYuan(yuan);
    static_cast<void>(all.store({card, more, more, before + more, "", before}));
  }

  std::string value(const char* query) const {
    Rows rows = shop->query(query);
    return rows.next() ? rows.text("value") : "(no row)";
  }
  /// What the file has in stock of the second item, as if no bill were open.
  std::string stock() const {
    return value(
        "select round((select quantity from stock where spbm = 'B') + coalesce((select"
        " sum(l.amount * ratio) from sellProducts l join sell s on s.id = l.sellId where s.state = "
        "0"
        " and bm = 'B'), 0), 6) as value");
  }
  std::string balance(const std::string& card) const {
    Rows rows = shop->query("select card from member where bh = ?", card);
    return rows.next() ? rows.text("card") : "(no card)";
  }

  std::unique_ptr<Connection> shop;

 private:
  static void fill(Connection& connection) {
    Transaction filling(connection);
    connection.runScript(R"(
      insert into operators (id, name, code, password) values (1, '张三', '01', '');
      insert into stock (spbm, quantity) values ('A', 1000), ('B', 1000), ('C', 0.5);
      insert into member (bh, name, card, password, join_date) values
        ('8001', '陈', 10000, '1111', '2026-01-01 00:00:00'),
        ('8002', '刘', 10000, '1111', '2026-01-01 00:00:00');
    )");
    filling.commit();
  }
  BillBooks books() { return {*shop, rules_, localTime, cashier_}; }
  void ring(BillBooks& all, ClsSell& bill, const char* item, const char* price, double quantity) {
    auto line = std::make_shared<ClsSellItem>();
    line->Init(*shop, bill.BillNo(), 0, localTime);
    line->setSpCode(item);
    line->setSpName(item);
    line->setPrice(Currency::parse(price).value());
    line->setQuantity(quantity);
    ensure(all.ring(*line).done(), "the stock rule is that goods may be sold");
    bill.AddItem(line);
  }

  ClsSysParam rules_;
  std::shared_ptr<ClsOperator> cashier_ = std::make_shared<ClsOperator>();
};
