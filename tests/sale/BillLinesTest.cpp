#include "TillFixture.h"

using testing::ElementsAre;
using testing::HasSubstr;

class BillLinesTest : public TillFixture {
 protected:
  static constexpr int kUp = 38, kDown = 40, kRight = 39, kF4 = 115, kF12 = 123;

  BillLinesTest() { open(); }

  /// Corrects the current line: Up, `rights` times Right, the value, Enter.
  void correct(int rights, const QString& value) {
    press(kUp);
    for (int i = 0; i < rights; ++i) press(kRight);
    enter(value);
  }
  /// The screen and the books tell the same: rows, lines stored, tags.
  void expectInStep() {
    const SaleState& sale = session.state;
    const std::size_t committed = sale.curBill->Items().size();
    const std::size_t held = committed + (sale.curLine ? 1 : 0);
    ASSERT_EQ(sale.rows.size(), held + 1);
    EXPECT_EQ(lines(), std::to_string(held));
    for (std::size_t i = 0; i < sale.rows.size(); ++i) {
      EXPECT_EQ(sale.rows[i].tag, i < committed ? sale.curBill->Items()[i]->Id() : 0) << i;
    }
  }
};

TEST_F(BillLinesTest, rowsAndStatusTellTheBill) {
  enter(kWater);
  EXPECT_THAT(session.state.rows.at(0).cells, ElementsAre("1", kWater, "矿泉水", "2.50", "1", "1",
                                                          "2.50", "100", "浙江", "瓶", "1001"));
  EXPECT_EQ(till.status, "1件商品，原价合计2   合计2.50元");
  expectInStep();
  enter(kCrate);
  correct(0, "3");
  EXPECT_EQ(cell(1, BillRow::kNumber) + " " + cell(1, BillRow::kStock), "2 64");
  EXPECT_EQ(stock("1001"), "63");
  EXPECT_EQ(till.status, "4件商品，原价合计86   合计86.50元");
  for (const char* weight : {"0.1", "0.2"}) {
    enter(kApples);
    correct(0, weight);
  }
  EXPECT_EQ(till.status, "4.3件商品，原价合计86   合计88.30元");
  expectInStep();
}

// What Enter does by length of the text, selected row and edited column.
TEST_F(BillLinesTest, enterByLengthRowAndColumn) {
  struct Case {
    const char* typed;
    int rights;  // -1: on the entry row, else so many columns right of the quantity
    const char *message, *quantity, *discount;
    bool backOnEntryRow;
  };
  for (const Case& each : std::vector<Case>{
           {"x", -1, "", "1", "1", true},
           {"xx", -1, "没有找到：xx的商品", "1", "1", true},
           {"茶茶茶茶茶", -1, "没有找到：茶茶茶茶茶的商品", "1", "1", true},
           {"xxxxxx", -1, "没有找到条码为：xxxxxx的商品", "1", "1", true},
           {"3", 0, "", "3", "1", true},
           {"１.5", 0, "", "1.5", "1", true},
           {"x", 0, "", "1", "1", false},
           {"12345", 0, "", "12345", "1", true},
           {"123456", 0, "", "1", "1", true},  // a barcode, dropped
           {"0.9", 1, "", "1", "0.9", true},
           {"0", 1, "", "1", "0", true},
           {"99", 1, "", "1", "99", true},
           {"-1", 1, "", "1", "1", false},
           {"abc", 1, "", "1", "1", false},
       }) {
    SCOPED_TRACE(each.typed);
    till.messages.clear();
    enter(kWater);
    if (each.rights < 0) {
      enter(each.typed);
    } else {
      correct(each.rights, each.typed);
    }
    EXPECT_EQ(till.messages.empty() ? "" : till.messages.front(), each.message);
    EXPECT_EQ(cell(0, BillRow::kQuantity), each.quantity);
    EXPECT_EQ(cell(0, BillRow::kDiscount), each.discount);
    EXPECT_EQ(session.state.onEntryRow, each.backOnEntryRow);
    EXPECT_TRUE(each.backOnEntryRow || till.text.isEmpty());
    expectInStep();
    press(kDown);
    press(kF12);
    EXPECT_EQ(stock("1001"), "100");
  }
}

TEST_F(BillLinesTest, refusedStockDropsTheLineOrTheChange) {
  setParameter("StockRule", "1");
  pos.gConn->Execute("update stock set quantity = 13 where spbm = '1001'");
  enter(kCrate);
  correct(0, "2");
  EXPECT_THAT(onlyMessage(), HasSubstr("矿泉水"));
  EXPECT_EQ(till.text, "1");
  EXPECT_FALSE(session.state.onEntryRow);
  EXPECT_EQ(session.state.curLine->Quantity(), 1);
  press(kDown);
  enter(kCrate);
  EXPECT_THAT(onlyMessage(), HasSubstr("矿泉水"));
  EXPECT_EQ(session.state.curLine, nullptr);
  EXPECT_EQ(stock("1001"), "1");
  expectInStep();
}

// Stock has moved when the row fails: both are taken back, and the till goes on.
TEST_F(BillLinesTest, aFailedStoreTakesTheStockBack) {
  enter(kWater);
  const struct {
    const char* broken;
    std::function<void()> act;
    std::size_t messages;
  } cases[] = {{"update", [this] { correct(0, "5"); }, 1},
               {"delete", [this] { press(kF4), press(kF12); }, 2},
               {"insert", [this] { press(kDown), enter(kCrate); }, 1}};
  for (const auto& each : cases) {
    SCOPED_TRACE(each.broken);
    breakStore(std::string(each.broken) + " on sellProducts");
    each.act();
    pos.gConn->run("drop trigger broken");
    EXPECT_EQ(till.messages.size(), each.messages);
    till.messages.clear();
    EXPECT_EQ(stock("1001"), "99");
    EXPECT_EQ(cell(0, BillRow::kQuantity), "1");
    expectInStep();
  }
  enter(kCrate);
  EXPECT_EQ(stock("1001"), "87");
  expectInStep();
}

TEST_F(BillLinesTest, figuresThatDoNotFitAreRefused) {
  till.answers = {"900000000000000", "900000000000000"};
  enter(kNoPrice);
  correct(0, "99999");
  EXPECT_EQ(till.messages.size(), 1U);
  EXPECT_EQ(cell(0, BillRow::kQuantity), "1");
  press(kDown);
  enter(kNoPrice);
  EXPECT_EQ(till.messages.size(), 2U);
  expectInStep();
}

TEST_F(BillLinesTest, originalPriceRoundsHalvesToEvenAndDoesNotWrap) {
  till.choice = 0;
  enter(kDouble);  // 12.50 counts 12
  till.choice = 1;
  enter(kDouble);     // 13.50 counts 14
  correct(0, "2.5");  // counts 2
  EXPECT_EQ(session.state.origTotal, 12 + 28);
  correct(0, "99999");
  EXPECT_EQ(session.state.origTotal, 12 + 14 * 99999);
}

TEST_F(BillLinesTest, onlyTheCurrentLineIsReachedAndRemoved) {
  for (const bool editing : {false, true}) {
    enter(kWater);
    enter(kCrate);
    for (const int expected : {1, 1}) {
      press(kUp);
      EXPECT_EQ(session.state.selected, expected);
    }
    if (!editing) press(kDown);
    EXPECT_EQ(session.state.onEntryRow, !editing);
    press(kF4);
    EXPECT_EQ(till.status, "1件商品，原价总计2合计2.5元");
    EXPECT_EQ(cell(0, BillRow::kName), "矿泉水");
    EXPECT_EQ(session.state.selected, 1);
    expectInStep();
    press(kF4);
    press(kUp);
    EXPECT_TRUE(session.state.onEntryRow) << "a committed line is out of reach";
    session.listClicked();
    EXPECT_EQ(session.state.selected, 1);
    press(kF12);
    EXPECT_EQ(till.status, "");
  }
}
