#include "saleslib/ShiftBooks.h"

#include "Shop.h"
#include "base/NumberText.h"
#include "saleslib/BillBooks.h"
#include "saleslib/ClsSysParam.h"
#include "saleslib/Journal.h"
#include "saleslib/ReturnBooks.h"
#include "saleslib/TopUpBooks.h"
#include "store/StoreError.h"

using testing::HasSubstr;

/// A shop that sells in shifts and keeps a journal, with one member's card.
class ShiftTest : public Shop {
 protected:
  ShiftTest() {
    connection.runScript(R"(
      insert into operators (id, name, code, password) values (1, '张三', '01', '-');
      insert into stock values ('1001', 100);
      insert into member (bh, name, card, password, join_date) values
        ('8001', '王芳', 88.5, 'Pw1', '2026-01-02 00:00:00');
    )");
    connection.setUser({.number = [] { return 1; }, .clock = clock});
    cashier->Init(connection, 1);
    rules.Conn(connection);
    for (const char* name : {"Shifts", "PhonePay", "Journal"}) EXPECT_EQ(rules.set(name, "1"), "");
  }

  std::shared_ptr<ClsSell> rung(const char* price, double quantity = 1) {
    std::shared_ptr<ClsSell> bill = books.open();
    auto line = newLine(*bill, price, quantity);
    EXPECT_TRUE(books.ring(*line).done());
    bill->AddItem(line);
    return bill;
  }
  std::shared_ptr<ClsSell> paid(const char* price, const char* cash, const char* bankCard = "0",
                                const char* phone = "0", const char* favorable = "0") {
    std::shared_ptr<ClsSell> bill = rung(price);
    bill->setCash(yuan(cash));
    bill->setBankCard(yuan(bankCard));
    bill->setTendered(Tender::kPhone, yuan(phone));
    bill->setFavorable(yuan(favorable));
    EXPECT_EQ(books.markPaid(*bill), "");
    return bill;
  }
  void sell(const char* price, const char* cash, const char* bankCard = "0",
            const char* phone = "0", const char* favorable = "0") {
    EXPECT_TRUE(books.settle(*paid(price, cash, bankCard, phone, favorable)));
  }
  void payByCard(const char* price) {
    std::shared_ptr<ClsSell> bill = rung(price);
    bill->setCardNo("8001");
    bill->setCardPay(bill->Amount());
    EXPECT_EQ(books.payByCard(*bill, "Pw1").outcome, CardOutcome::kDone);
    EXPECT_TRUE(books.settle(*bill));
  }
  void takeBack(std::int32_t number, const char* refund) {
    ReturnBooks returns(connection, clock, cashier);
    const std::shared_ptr<ClsSell> bill = returns.find(number).bill;
    EXPECT_EQ(returns.takeBack(*bill, *bill->Items().at(0), 1, yuan(refund)).kind,
              ReturnBooks::Outcome::kDone);
  }
  void topUp(const char* money) {
    const Currency before = TopUpBooks(connection).card("8001")->balance;
    const TopUp topUp{"8001", yuan(money), yuan(money), before + yuan(money), "", before};
    EXPECT_EQ(TopUpBooks(connection).store(topUp).outcome, CardOutcome::kDone);
  }
  void count(std::array<std::int32_t, kCashPieces.size()> pieces) {
    EXPECT_TRUE(shifts.count({pieces}));
  }
  /// "name count:amount" of what is not nothing.
  static std::string figures(const Shift& shift) {
    std::string text;
    ShiftTakings::each(shift.takings, [&](const std::string& name, const ShiftSum& sum) {
      if (sum == ShiftSum()) return;
      text += name + " " + std::to_string(sum.count) + ":" + generalNumber(sum.amount) + " ";
    });
    return text + "= " + generalNumber(shift.expected());
  }

  ClsSysParam rules;
  std::shared_ptr<ClsOperator> cashier = std::make_shared<ClsOperator>();
  BillBooks books{connection, rules, clock, cashier};
  ShiftBooks shifts{connection, clock, cashier};
};

TEST_F(ShiftTest, WhatIsPaidBelongsToTheShiftThatWasOpenWhateverComesLater) {
  const std::shared_ptr<ClsSell> early = rung("5");
  early->setCash(yuan("5"));
  EXPECT_THAT(books.markPaid(*early), HasSubstr("还没有开班"));
  EXPECT_EQ(stored("paid from sell"), "0");
  EXPECT_FALSE(shifts.move(yuan("1"), "零钱") || shifts.close());
  ASSERT_TRUE(shifts.open(yuan("200")));
  EXPECT_FALSE(shifts.open(yuan("200")));
  EXPECT_FALSE(shifts.close()) << "nobody has counted";
  sell("12.3", "20");
  sell("50", "0", "30", "20");
  sell("10", "0", "12");  // the change of a bank card is cash
  sell("8", "7.5", "0", "0", "0.5");
  payByCard("8.5");
  topUp("100");
  EXPECT_TRUE(shifts.move(yuan("50"), "换零钱") && shifts.move(yuan("-120.5"), "付水费"));
  takeBack(2, "12.3");
  now = {{2026, 11, 23}, 0, 5, 0};
  const std::shared_ptr<ClsSell> crashed = paid("6", "10");
  const char* const kFigures =
      "bills 6:94.8 cash 4:23.8 bank_card 2:42 phone_pay 1:20 card_pay 1:8.5 favorable 1:0.5"
      " top_ups 1:100 refunds 1:12.3 cash_in 1:50 cash_out 1:120.5 = 241";
  EXPECT_EQ(figures(*shifts.current()), kFigures);
  count({2, 0, 2, 0, 0, 1, 0, 0});
  count({2, 0, 2, 0, 0, 1, 1, 0});
  ASSERT_TRUE(shifts.close());
  const Shift closed = *shifts.find(1);
  EXPECT_EQ(figures(closed), kFigures);
  EXPECT_EQ(generalNumber(closed.difference()), "0.5");
  EXPECT_EQ(closed.counts, 2);
  EXPECT_EQ(closed.journalHash, stored("hash from fact order by seq desc limit 1"));
  EXPECT_FALSE(shifts.move(yuan("1"), "零钱") || shifts.count({}) || shifts.close());

  now = {{2026, 11, 22}, 8, 0, 0};  // the clock is put back
  ASSERT_TRUE(shifts.open(yuan("100")));
  EXPECT_TRUE(books.settle(*crashed)) << "the crashed till completes what was paid before";
  takeBack(3, "50");
  EXPECT_EQ(figures(*shifts.current()), "refunds 1:50 = 50");
  EXPECT_EQ(figures(*shifts.find(1)), kFigures);
  EXPECT_EQ(takingsOfShift(connection, 1), closed.takings) << "the books still say the same";
  ASSERT_EQ(shifts.closed(9).size(), 1U);
  EXPECT_EQ(shifts.closed(9)[0].closedBy + generalText(*shifts.closed(9)[0].closed),
            "张三2026-11-23 00:05:00");
}

TEST_F(ShiftTest, ItsSheetCountsWhatNoTakingsShow) {
  const Journal journal(connection);
  const auto deeds = [](const Shift& shift) {
    const ShiftDeeds& found = shift.deeds.value();
    return std::to_string(found.drawerOpened) + " " + std::to_string(found.cancelled.count) + ":" +
           generalNumber(found.cancelled.amount) + " " + std::to_string(found.deleted.count) + ":" +
           generalNumber(found.deleted.amount) + " " + std::to_string(found.approvals);
  };
  const auto countedAndClosed = [&] {
    journal.note(EntryKind::kDrawerOpened);
    count({1});
    return shifts.close();
  };
  ASSERT_TRUE(shifts.open(yuan("100")));
  const std::shared_ptr<ClsSell> bill = rung("5", 2);
  auto line = newLine(*bill, "3", 1);
  EXPECT_TRUE(books.ring(*line).done() && books.remove(*line).done());
  journal.note(EntryKind::kApprovalGiven);
  journal.note(EntryKind::kApprovalRefused);
  EXPECT_TRUE(books.cancel(*bill).empty());
  books.drop(*books.open());
  journal.note(EntryKind::kDrawerOpened);
  EXPECT_EQ(deeds(*shifts.current()), "1 1:10 1:3 1");
  ASSERT_TRUE(countedAndClosed() && shifts.open(yuan("100")));
  EXPECT_EQ(deeds(*shifts.find(1)), "1 1:10 1:3 1") << "what opens it for a count is a count";
  EXPECT_EQ(deeds(*shifts.current()), "0 0:0 0:0 0");
  EXPECT_EQ(rules.set("Journal", "0"), "");
  EXPECT_FALSE(shifts.current()->deeds);
  EXPECT_EQ(rules.set("Journal", "1"), "");
  journal.note(EntryKind::kDrawerOpened);
  ASSERT_TRUE(countedAndClosed());
  EXPECT_EQ(deeds(*shifts.find(2)), "1 0:0 0:0 0");
}

TEST_F(ShiftTest, EachStepIsWrittenWholeWithItsEntryAndNothingClosedChanges) {
  const std::pair<const char*, std::function<bool()>> steps[] = {
      {"shift_opened", [this] { return shifts.open(yuan("100")); }},
      {"cash_moved", [this] { return shifts.move(yuan("5"), "零钱").has_value(); }},
      {"shift_counted",
       [this] {
         return shifts.count({{1, 0, 0, 0, 1}});
       }},
      {"shift_closed", [this] { return shifts.close(); }}};
  const char* const kState =
      "(select count(*) || coalesce(max(closed), '') from shift) || (select count(*) from"
      " shift_cash) || (select count(*) from shift_count) || (select count(*) from shift_figure)";
  for (const auto& [kind, step] : steps) {
    const std::string before = stored(kState);
    breakStore("insert on fact");
    EXPECT_THROW(step(), StoreError) << kind;
    connection.runScript("drop trigger broken");
    EXPECT_EQ(stored(kState), before) << kind;
    EXPECT_TRUE(step()) << kind;
    EXPECT_EQ(stored("kind from fact order by seq desc limit 1"), kind);
  }
  for (const char* tampering :
       {"update shift set cash_float = 1", "delete from shift",
        "update shift_figure set amount = 1", "delete from shift_cash",
        "insert into shift_cash select 9, 1, time, 1, '', 1, '' from shift_cash",
        "insert into shift_count values (1, 2, 100, 1)", "update shift_count set pieces = 9"})
    EXPECT_THROW(connection.run(tampering), StoreError) << tampering;
}
