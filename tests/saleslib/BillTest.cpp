#include "Shop.h"
#include "store/StoreError.h"
#include "store/Transaction.h"

using BillTest = Shop;

TEST_F(BillTest, ABillLivesFromItsOpeningToItsReload) {
  ClsSell bill = openBill(7);
  now = {{2026, 11, 23}, 23, 59, 54};  // opened the day before, dated by its first line's entry
  const auto water = newLine(bill, "1.5", 2);
  water->setDiscount(Discount(0.9));
  water->setEntryCode("6901");
  water->setRatio(12);
  water->Save();
  now = {{2026, 11, 24}, 0, 0, 8};
  bill.AddItem(water);
  bill.setAmount(yuan("2"));
  ring(bill, "10.05", 0.333);
  EXPECT_EQ(bill.Amount(), yuan("6.05")) << "what the settlement rounded stayed in the bill";
  bill.setAmount(yuan("6"));
  int tendered = 0;
  for (const TenderKind& kind : tenderKinds())
    bill.setTendered(kind.tender, Currency::fromYuan(++tendered));
  bill.setCardNo("88");
  bill.setSlip("28A");
  bill.setSalesman(3);
  bill.setMemberId(5);
  settle(bill);
  EXPECT_EQ(stored("insert_Date from sellProducts limit 1"), "2026-11-23 23:59:54");

  // Read back and stored again, whatever of it is not read is lost.
  ClsSell again;
  ASSERT_TRUE(again.OpenLastOfMember(connection, 5));
  again.LoadLines();
  for (const auto& line : again.Items()) line->setSpName("水");
  ASSERT_TRUE(again.Save());
  EXPECT_EQ(stored("sell_time || ' ' || operator_id || ' ' || salesman || ', ' || quantity || ' '"
                   " || goods_amount || ' ' || amount || ' by ' || cash || bank_card || phone_pay"
                   " || card_pay || favorable || ' ' || card_no || ' ' || phone_slip from sell"),
            "2026-11-23 23:59:54 7 3, 2.333 6.05 6 by 12345 88 28A");
  EXPECT_EQ(stored("group_concat(name || entry_code || ' ' || amount || ' x ' || price ||"
                   " ' x ' || discount || ' = ' || money || ' / ' || ratio, '; ')"
                   " from sellProducts"),
            "水6901 2 x 1.5 x 0.9 = 2.7 / 12; 水 0.333 x 10.05 x 1 = 3.35 / 1");
  EXPECT_EQ(again.Change(), yuan("9"));
  EXPECT_FALSE(again.OpenLastOfMember(connection, 6) || again.Open(connection, 999, 0));
}

TEST_F(BillTest, ABillChecksItselfBeforeItIsStoredAndAfterItIsLoaded) {
  ClsSell bill = openBill(), damaged;
  ring(bill, "2", 1)->setQuantity(2);
  EXPECT_DEATH((void)bill.Save(), "add up");
  bill.Recalculate();
  settle(bill);
  EXPECT_DEATH(bill.AddItem(newLine(openBill(), "1", 1)), "own bill");

  connection.run("update sellProducts set amount = 3");
  ASSERT_TRUE(damaged.Open(connection, bill.BillNo(), 0));
  EXPECT_THAT([&] { damaged.LoadLines(); },
              testing::ThrowsMessage<StoreError>(testing::HasSubstr("单据 1 ")))
      << "a settled bill with other lines than it was paid for went unnoticed";
  connection.run("update sell set state = 0");
  ASSERT_TRUE(damaged.Open(connection, bill.BillNo(), 0));
  damaged.LoadLines();
  EXPECT_EQ(damaged.Amount(), yuan("6"));
  damaged.Void();
  EXPECT_FALSE(damaged.Save());
  EXPECT_EQ(damaged.ErrText(), "单据 1 已不在数据文件中！");
}

TEST_F(BillTest, ABillWhoseStoringFailsIsStoredByTheNextSave) {
  ClsSell bill = openBill();
  const auto stays = ring(bill, "2", 1);
  ring(bill, "3", 5)->setQuantity(4);
  bill.AddItem(newLine(bill, "1", 1));
  bill.Recalculate();
  bill.setState(1);
  breakStore("update on sell");
  EXPECT_FALSE(bill.Save());
  EXPECT_EQ(stored("group_concat(amount) from sellProducts"), "1,5");
  connection.run("drop trigger broken");

  // Only what has changed is written: the first line's row is not touched.
  breakStore("update on sellProducts when old.id = " + std::to_string(stays->Id()));
  EXPECT_TRUE(bill.Save());
  EXPECT_EQ(stored("state || ' ' || amount from sell"), "1 15");
}

TEST_F(BillTest, ALineKnowsWhatWasTakenBackWithItsTransaction) {
  ClsSell bill = openBill();
  const auto old = ring(bill, "2", 1), fresh = newLine(bill, "1", 1);
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
    EXPECT_TRUE(fresh->Id() != 0 && !old->Changed());
  }
  EXPECT_EQ(fresh->Id(), 0) << "its key may by now be another line's";
  EXPECT_TRUE(old->Changed());
  ring(bill, "5", 1);
  fresh->Save();
  bill.AddItem(fresh);
  ASSERT_TRUE(bill.Save());
  EXPECT_EQ(stored("group_concat(amount || 'x' || price) from sellProducts"), "9x2,1x5,1x1");
  {
    Transaction outer(connection);
    { Transaction inner(connection); }
    old->setQuantity(1);
    old->Save();
    outer.commit();
  }
  EXPECT_FALSE(old->Changed());
}
