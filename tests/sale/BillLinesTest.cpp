#include "TillFixture.h"

class BillLinesTest : public TillFixture {
 protected:
  BillLinesTest() { open(); }

  /// Corrects the current line: Up, `rights` times Right, the value, Enter.
  void correct(int rights, const QString& value) {
    press(kUp);
    for (int i = 0; i < rights; ++i) press(kRight);
    enter(value);
  }
  /// The screen and the books tell the same: rows, lines stored, tags.
  void expectInStep() {
    const std::size_t rung = bill().Items().size() + (session.sale().line() ? 1 : 0);
    ASSERT_EQ(till.rows.size(), rung + 1);
    EXPECT_EQ(lines(), std::to_string(rung));
    for (std::size_t i = 0; i < rung; ++i) EXPECT_EQ(till.rows[i][0], std::to_string(i + 1));
    EXPECT_EQ(till.rows.back()[BillRow::kName], "");
  }
};

TEST_F(BillLinesTest, rowsAndStatusTellTheBill) {
  enter(kWater);
  EXPECT_THAT(till.rows.at(0), testing::ElementsAre("1", kWater, "矿泉水", "2.50", "1", "1", "2.50",
                                                    "100", "浙江", "瓶", "1001"));
  for (const char* weight : {"0.1", "0.2"}) {
    enter(kApples);
    correct(0, weight);
  }
  EXPECT_EQ(till.status, "1.3件商品，原价合计2   合计4.30元");
}

// What Enter does by length of the text, selected row and edited column.
TEST_F(BillLinesTest, enterByLengthRowAndColumn) {
  setParameter("CheckPayment", "1");
  struct Case {
    const char* typed;
    int rights;  // -1: on the entry row, else so many columns right of the quantity
    const char *message, *figures;  // quantity and discount afterwards
    bool backOnEntryRow = true;
  };
  for (const Case& each : std::vector<Case>{
           {"x", -1, "", "1 1"},
           {"xx", -1, "没有找到：xx的商品", "1 1"},
           {"茶茶茶茶茶", -1, "没有找到：茶茶茶茶茶的商品", "1 1"},
           {"xxxxxx", -1, "没有找到条码为：xxxxxx的商品", "1 1"},
           {"１.5", 0, "", "1.5 1"},
           {"x", 0, "", "1 1", false},
           {"12345", 0, "", "12345 1"},
           {"123456", 0, "正在修改商品行，“123456”没有录入。请重新录入。", "1 1"},
           {"0.9", 1, "", "1 0.9"},
           {"0", 1, "", "1 0"},
           {"8", 1, ":折扣 8 大于 1，会比原价贵，确定吗？ 否", "1 1", false},
           {"-1", 1, "", "1 1", false},
           {"abc", 1, "", "1 1", false},
       }) {
    SCOPED_TRACE(each.typed);
    enter(kWater);
    each.rights < 0 ? enter(each.typed) : correct(each.rights, each.typed);
    EXPECT_EQ(till.said(), each.message);
    EXPECT_EQ(cell(0, BillRow::kQuantity) + " " + cell(0, BillRow::kDiscount), each.figures);
    EXPECT_EQ(session.sale().onEntryRow(), each.backOnEntryRow);
    EXPECT_TRUE(each.backOnEntryRow || till.text.isEmpty());
    expectInStep();
    press(kDown);
    press(kF12);
    EXPECT_EQ(stock(), "100");
  }
}

// Stock has moved when the row fails: both are taken back, and the till goes on.
TEST_F(BillLinesTest, aLineThatCannotBeDeletedKeepsItsStock) {
  enter(kWater);
  breakStore("delete on sellProducts");
  for (const int key : {kF4, kF12}) {
    press(key);
    EXPECT_NE(till.said(), "");
    EXPECT_EQ(stock(), "99");
    expectInStep();
  }
  mendStore();
  press(kF12);
  EXPECT_EQ(stock(), "100");
}

TEST_F(BillLinesTest, figuresThatDoNotFitAreRefused) {
  till.answers = {"900000000000000", "900000000000000"};
  enter(kNoPrice);
  correct(0, "99999");
  EXPECT_NE(till.said(), "");
  EXPECT_EQ(cell(0, BillRow::kQuantity), "1");
  EXPECT_EQ(till.text, "1") << "the quantity that stands, to be typed over";
  press(kDown);
  enter(kNoPrice);
  EXPECT_NE(till.said(), "") << "the sum of two lines";
  expectInStep();
}

TEST_F(BillLinesTest, theCustomerSeesThePriceOfEachLineAndOfItsCorrection) {
  press(kEsc);
  pos.gPosSet.CVProt = "COM1";
  open();
  ports.shown.clear();
  enter(kWater);
  correct(0, "3");
  EXPECT_EQ(ports.shown, "\x1Bs1\x1BQA2.50\r\x1Bs1\x1BQA2.50\r");
}

TEST_F(BillLinesTest, originalPriceRoundsHalvesToEvenAndDoesNotWrap) {
  till.choice = 0;
  enter(kDouble);  // 12.50 counts 12
  till.choice = 1;
  enter(kDouble);     // 13.50 counts 14
  correct(0, "2.5");  // counts 2
  EXPECT_EQ(till.status, "3.5件商品，原价合计40   合计45.00元");
  correct(0, "99999");
  EXPECT_EQ(till.status, "100000件商品，原价合计1399998   合计1349997.75元");
}

TEST_F(BillLinesTest, onlyTheCurrentLineIsReachedAndRemoved) {
  for (const bool editing : {false, true}) {
    enter(kWater);
    enter(kCrate);
    for (int i = 0; i < 2; ++i) press(kUp);
    EXPECT_EQ(till.framed, std::pair(1, BillRow::kQuantity));
    if (!editing) press(kDown);
    press(kF4);
    EXPECT_EQ(till.status, "1件商品，原价总计2合计2.5元");
    EXPECT_EQ(cell(0, BillRow::kName), "矿泉水");
    expectInStep();
    EXPECT_EQ(till.framed, std::pair(1, BillRow::kNumber));
    press(kF4);
    EXPECT_EQ(till.said(), "没有可删除的行：已确认的商品不能单独删除，只能整单撤消。");
    press(kUp);
    EXPECT_TRUE(session.sale().onEntryRow()) << "a committed line is out of reach";
    session.listClicked();
    EXPECT_EQ(till.framed, std::pair(1, BillRow::kNumber));
    press(kF12);
  }
}
