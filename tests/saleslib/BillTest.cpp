#include "Shop.h"
#include "base/NumberText.h"
#include "store/StoreError.h"
#include "store/Transaction.h"

using BillTest = Shop;

TEST_F(BillTest, ABillLivesFromItsOpeningToItsReload) {
  ClsSell bill = openBill(7);
  EXPECT_EQ(bill.SellTime(), now);
  now.date.day = 23;
  now.hour = 10;
  const auto water = newLine(bill, "1.5", 2);
  water->setDiscount(Discount(0.9));
  water->setEntryCode("6901");
  water->setRatio(12);
  EXPECT_EQ(water->Id(), 0);
  water->Save();
  EXPECT_NE(water->Id(), 0);
  bill.AddItem(water);
  now.hour = 11;
  ring(bill, "10.05", 0.333);
  EXPECT_EQ(bill.Quantity(), 2.333);
  EXPECT_EQ(bill.Amount(), yuan("6.05"));
  bill.setAmount(yuan("6"));
  bill.setCash(yuan("4"));
  bill.setBankCard(yuan("1"));
  bill.setCardPay(yuan("0.5"));
  bill.setFavorable(yuan("1"));
  bill.setCardNo("88");
  bill.setSalesman(3);
  bill.setMemberId(5);
  settle(bill);

  const ClsSell again = loaded(bill.BillNo());
  EXPECT_EQ(again.Amount(), yuan("6"));
  EXPECT_EQ(again.GoodsAmount(), yuan("6.05"));
  EXPECT_EQ(again.Change(), yuan("0.5"));
  EXPECT_EQ(again.Cash(), yuan("4"));
  EXPECT_EQ(again.CardNo(), "88");
  EXPECT_EQ(again.OperatorId(), 7);
  EXPECT_EQ(again.Salesman(), 3);
  EXPECT_EQ(again.SellTime().date.day, 23) << "opened the evening before";
  EXPECT_EQ(again.SellTime().hour, 10);
  ASSERT_EQ(again.Items().size(), 2u);
  const ClsSellItem& line = *again.Items()[0];
  EXPECT_EQ(line.Id(), water->Id());
  EXPECT_EQ(line.EntryCode(), "6901");
  EXPECT_EQ(line.Money(), yuan("2.7"));
  EXPECT_EQ(line.StockQuantity(), 24);
  EXPECT_FALSE(line.Changed());
  EXPECT_EQ(stored("select insert_Date from sellProducts limit 1"), "2026-11-23 10:05:03");

  ClsSell last;
  EXPECT_TRUE(last.OpenLastOfMember(connection, 5));
  EXPECT_EQ(last.BillNo(), bill.BillNo());
  EXPECT_FALSE(last.OpenLastOfMember(connection, 6));
  EXPECT_FALSE(last.Open(connection, 999, 0));
}

TEST_F(BillTest, AVoidedBillIsGoneAndItsNumberIsNotUsedAgain) {
  ClsSell kept = openBill();
  ring(kept, "1", 1);
  ClsSell bill = openBill();
  ring(bill, "1", 1);
  ring(bill, "2", 1)->Delete();
  EXPECT_EQ(stored("select count(*) from sellProducts"), "2");
  bill.Void();
  EXPECT_EQ(stored("select count(*) from sellProducts"), "1");
  EXPECT_EQ(stored("select count(*) from sell"), "1");
  EXPECT_FALSE(bill.Save());
  EXPECT_THAT(bill.ErrText(), testing::HasSubstr("单据 2"));
  EXPECT_EQ(openBill().BillNo(), 3);
}

TEST_F(BillTest, ABillChecksItselfBeforeItIsStoredAndAfterItIsLoaded) {
  ClsSell bill = openBill();
  const auto line = ring(bill, "2", 1);
  line->setQuantity(2);
  EXPECT_DEATH((void)bill.Save(), "add up");
  bill.Recalculate();
  settle(bill);
  EXPECT_EQ(bill.Amount(), yuan("4"));
  EXPECT_DEATH(bill.AddItem(newLine(openBill(), "1", 1)), "own bill");

  connection.run("update sellProducts set amount = 3");
  ClsSell damaged;
  ASSERT_TRUE(damaged.Open(connection, bill.BillNo(), 0));
  try {
    damaged.LoadLines();
    FAIL() << "a settled bill with other lines than it was paid for went unnoticed";
  } catch (const StoreError& error) {
    EXPECT_THAT(error.what(), testing::HasSubstr("单据 1 "));
  }
  connection.run("update sell set state = 0");
  EXPECT_EQ(loaded(bill.BillNo()).Amount(), yuan("6"));
}

TEST_F(BillTest, ABillWhoseStoringFailsIsStoredByTheNextSave) {
  ClsSell bill = openBill();
  const auto stays = ring(bill, "2", 1);
  const auto lowered = ring(bill, "3", 5);
  lowered->setQuantity(4);
  bill.AddItem(newLine(bill, "1", 1));
  bill.Recalculate();
  bill.setState(1);

  breakStore("update on sell");
  EXPECT_FALSE(bill.Save());
  EXPECT_FALSE(bill.ErrText().empty());
  EXPECT_EQ(stored("select group_concat(amount) from sellProducts"), "1,5");
  EXPECT_EQ(stored("select state from sell"), "0");
  mendStore();

  // Only what has changed is written: the first line's row is not touched.
  breakStore("update on sellProducts when old.id = " + std::to_string(stays->Id()));
  EXPECT_TRUE(bill.Save());
  EXPECT_EQ(loaded(bill.BillNo()).Amount(), yuan("15"));
}

TEST_F(BillTest, ALineKnowsWhatWasTakenBackWithItsTransaction) {
  ClsSell bill = openBill();
  const auto old = ring(bill, "2", 1);
  const auto fresh = newLine(bill, "1", 1);
  {
    Transaction outer(connection);
    {
      Transaction inner(connection);
      fresh->Save();
      inner.commit();
    }
    old->setQuantity(9);
    bill.Recalculate();
    ASSERT_TRUE(bill.Save());
    EXPECT_NE(fresh->Id(), 0);
    EXPECT_FALSE(old->Changed());
  }
  EXPECT_EQ(fresh->Id(), 0) << "its key may by now be another line's";
  EXPECT_TRUE(old->Changed());
  const auto other = ring(bill, "5", 1);
  fresh->Save();
  EXPECT_NE(fresh->Id(), other->Id());
  bill.AddItem(fresh);
  ASSERT_TRUE(bill.Save());
  EXPECT_EQ(stored("select group_concat(amount || 'x' || price) from sellProducts"), "9x2,1x5,1x1");
  {
    Transaction outer(connection);
    { Transaction inner(connection); }
    old->setQuantity(1);
    old->Save();
    outer.commit();
  }
  EXPECT_FALSE(old->Changed());
}
