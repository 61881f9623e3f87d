#pragma once

#include <gmock/gmock.h>

#include <filesystem>
#include <memory>
#include <random>
#include <string>
#include <utility>

#include "base/Failure.h"
#include "base/NumberText.h"
#include "saleslib/BillAuthority.h"
#include "saleslib/BillBooks.h"
#include "saleslib/CardAuthority.h"
#include "saleslib/ClsSysParam.h"
#include "saleslib/ReturnBooks.h"
#include "saleslib/ShopLink.h"
#include "saleslib/TopUpBooks.h"
#include "store/Connection.h"
#include "store/DataFile.h"
#include "store/Transaction.h"

/// A till without windows: the sale library at work on a data file of its own, with three goods of
/// which a thousand are in stock and two cards with 10,000 yuan each.
class SellingTill {
 public:
  static constexpr int kStock = 1000, kBalance = 10'000;

  /// Makes the file where there is none.
  explicit SellingTill(const std::filesystem::path& file, const std::string& password = {})
      : shop(std::filesystem::exists(file) ? openDataFile({file, password})
                                           : createDataFile({file, password}, fill)) {
    shop->setUser({.number = [] { return 1; }, .clock = localTime});
    rules_.Conn(*shop);
    cashier_->Init(*shop, 1);
  }

  /// What a till does at its start: completes what was paid.
  void begin() {
    static_cast<void>(books().completePaid());
    static_cast<void>(books().cancelOpen());
  }
  /// A bill of two lines, by that card or, without one or when it is refused (see outcome), in
  /// cash. What the customer is shown: its number and what was due, four decimals.
  std::pair<int, std::string> sell(double quantity, const std::string& card = {}) {
    BillBooks all = books();
    const std::shared_ptr<ClsSell> bill = all.open();
    bill->setMemberId(card.empty() ? 0 : 1);
    ring(all, *bill, "A", "4.05", 1);
    ring(all, *bill, "B", "1.333", quantity);
    if (card.empty() || !isPaidBy(card, all, *bill)) {
      bill->setCash(bill->Amount());
      ensure(all.markPaid(*bill).empty(), "a bill can be paid in cash");
    }
    ensure(all.settle(*bill), "a paid bill is stored");
    return {bill->BillNo(), generalNumber(bill->Amount())};
  }
  /// Some of the second item of a bill, for one yuan; refused without a word where there is no
  /// bill.
  ReturnBooks::Outcome takeBack(int number, double quantity) {
    ReturnBooks returns(*shop, localTime, cashier_, bills, rules_.OfflineReturn());
    const ReturnBooks::Found found = returns.find(number);
    if (found.bill == nullptr) return {ReturnBooks::Outcome::kRefused};
    return returns.takeBack(*found.bill, *found.bill->Items().back(), quantity,
                            Currency::fromYuan(1));
  }
  /// Puts a bill aside; its number.
  int hold(double quantity) {
    BillBooks all = books();
    const std::shared_ptr<ClsSell> bill = all.open();
    ring(all, *bill, "A", "4.05", 1);
    ring(all, *bill, "B", "1.333", quantity);
    all.drop(*all.hold(*bill));
    return bill->BillNo();
  }
  /// Takes a held bill up and cancels it; false when it is held no more.
  bool takeUp(const ClsSell& held) {
    BillBooks all = books();
    const std::shared_ptr<ClsSell> empty = all.open();
    const BillBooks::Recalled recalled = all.recall(held, *empty, [](const ClsSell&) {});
    recalled.bill ? static_cast<void>(all.cancel(*recalled.bill)) : all.drop(*empty);
    return recalled.bill != nullptr;
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
  std::string balance(const std::string& card) const {
    Rows rows = shop->query("select card from member where bh = ?", card);
    return rows.next() ? rows.text("card") : "(no card)";
  }
  /// What the file has in stock of the second item, as if no bill were open.
  std::string stock() const {
    return value(
        "select round((select quantity from stock where spbm = 'B') + coalesce((select"
        " sum(l.amount * ratio) from sellProducts l join sell s on s.id = l.sellId where s.state = "
        "0"
        " and bm = 'B'), 0), 6) as value");
  }

  void set(const char* parameter, const char* value) {
    ensure(rules_.set(parameter, value).empty(), "a parameter has values of its kind");
  }

  std::unique_ptr<Connection> shop;
  BillBooks books() { return {*shop, rules_, localTime, cashier_, cards, bills}; }
  const ClsSysParam& rules() const { return rules_; }

  CardAuthority* cards = nullptr;  ///< none: the file decides about cards
  BillAuthority* bills = nullptr;  ///< none: the file decides about returns and held bills
  CardOutcome outcome = CardOutcome::kDone;  ///< of the card that was tried last

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
  bool isPaidBy(const std::string& card, BillBooks& all, ClsSell& bill) {
    bill.setAmount(roundedToFen(bill.Amount()));
    ClsSell paid = bill;
    paid.setCardNo(card);
    paid.setCardPay(bill.Amount());
    outcome = all.payByCard(paid, "1111").outcome;
    if (outcome == CardOutcome::kDone) bill = paid;
    return outcome == CardOutcome::kDone;
  }
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
