#include "TillFixture.h"

using testing::ElementsAre;
using testing::HasSubstr;

namespace {
constexpr int kUp = 38, kDown = 40, kRight = 39, kF1 = 112, kF4 = 115, kF12 = 123;
}

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

TEST_F(BillLinesTest, firstItemStandsInRowOneOverAnEmptyEntryRow) {
  enter(kWater);
  EXPECT_THAT(session.state.rows.at(0).cells, ElementsAre("1", kWater, "矿泉水", "2.50", "1", "1",
                                                          "2.50", "100", "浙江", "瓶", "1001"));
  EXPECT_EQ(till.status, "1件商品，原价合计2   合计2.50元");
  EXPECT_EQ(stock("1001"), "99");
  expectInStep();

  enter(kCrate);
  EXPECT_EQ(cell(1, BillRow::kNumber), "2");
  EXPECT_EQ(cell(1, BillRow::kStock), "88");
  EXPECT_EQ(till.status, "2件商品，原价合计30   合计30.50元");
  EXPECT_EQ(stock("1001"), "87");
  expectInStep();
}

// What Enter does by length of the text, selected row and edited column.
TEST_F(BillLinesTest, enterByLengthRowAndColumn) {
  struct Case {
    const char* typed;
    int rights;  // -1: on the entry row, else so many columns right of the quantity
    const char* message;
    const char* quantity;
    const char* discount;
    bool backOnEntryRow;
  };
  const std::vector<Case> cases = {
      {"x", -1, "", "1", "1", true},
      {"xx", -1, "没有找到：xx的商品", "1", "1", true},
      {"xxxxx", -1, "没有找到：xxxxx的商品", "1", "1", true},
      {"茶茶茶茶茶", -1, "没有找到：茶茶茶茶茶的商品", "1", "1", true},
      {"xxxxxx", -1, "没有找到条码为：xxxxxx的商品", "1", "1", true},
      {"3", 0, "", "3", "1", true},
      {"１.5", 0, "", "1.5", "1", true},
      {"1", 0, "", "1", "1", true},
      {"x", 0, "", "1", "1", false},
      {"12345", 0, "", "12345", "1", true},
      {"123456", 0, "", "1", "1", true},  // a barcode, dropped
      {"0.9", 1, "", "1", "0.9", true},
      {"0", 1, "", "1", "0", true},
      {"99", 1, "", "1", "99", true},
      {"-1", 1, "", "1", "1", false},
      {"abc", 1, "", "1", "1", false},
  };
  for (const Case& each : cases) {
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
    EXPECT_EQ(cell(0, BillRow::kNumber), "1");
    EXPECT_EQ(session.state.onEntryRow, each.backOnEntryRow);
    EXPECT_TRUE(each.backOnEntryRow || till.text.isEmpty());
    expectInStep();
    press(kDown);
    press(kF12);
    EXPECT_EQ(stock("1001"), "100");
  }
}

TEST_F(BillLinesTest, aChangedQuantityMovesTheDifferenceInStockUnits) {
  enter(kCrate);
  correct(0, "3");
  EXPECT_EQ(stock("1001"), "64");
  EXPECT_EQ(cell(0, BillRow::kStock), "65");
  EXPECT_EQ(till.status, "3件商品，原价合计84   合计84.00元");
  EXPECT_EQ(stored("amount as v from sellProducts"), "3");
  correct(0, "2");
  EXPECT_EQ(stock("1001"), "76");
  expectInStep();
}

TEST_F(BillLinesTest, weighedGoodsStayExact) {
  pos.gConn->Execute("insert into stock (spbm, quantity) values ('1005', 10)");
  enter(kApples);
  correct(0, "0.3");
  correct(0, "0.1");
  EXPECT_EQ(stock("1005"), "9.9");
  EXPECT_EQ(cell(0, BillRow::kMoney), "0.60");
  enter(kApples);
  correct(0, "0.2");
  EXPECT_EQ(till.status, "0.3件商品，原价合计0   合计1.80元");
  press(kF12);
  EXPECT_EQ(stock("1005"), "10");
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
  EXPECT_EQ(stock("1001"), "1");

  press(kDown);
  enter(kCrate);
  EXPECT_THAT(onlyMessage(), HasSubstr("矿泉水"));
  EXPECT_EQ(session.state.curLine, nullptr);
  EXPECT_EQ(till.text, "");
  EXPECT_EQ(stock("1001"), "1");
  expectInStep();
}

// Stock has moved when the row fails: both are taken back, and the till goes on.
TEST_F(BillLinesTest, aFailedStoreTakesTheStockBack) {
  enter(kWater);
  const auto breakStore = [this](const char* kind) {
    pos.gConn->run((std::string("create temp trigger broken before ") + kind +
                    " on sellProducts begin select raise(abort, 'broken'); end")
                       .c_str());
  };
  const auto mend = [this] { pos.gConn->run("drop trigger broken"); };

  breakStore("update");
  correct(0, "5");
  EXPECT_EQ(till.text, "1");
  EXPECT_EQ(session.state.curLine->Quantity(), 1);
  mend();
  breakStore("delete");
  press(kF4);
  press(kF12);
  mend();
  EXPECT_EQ(till.messages.size(), 3U);
  EXPECT_EQ(stock("1001"), "99");
  expectInStep();

  press(kDown);
  breakStore("insert");
  enter(kCrate);
  EXPECT_EQ(till.messages.size(), 4U);
  EXPECT_EQ(stock("1001"), "99");
  expectInStep();
  mend();
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
  EXPECT_EQ(session.state.origTotal, 12);
  till.choice = 1;
  enter(kDouble);     // 13.50 counts 14
  correct(0, "2.5");  // counts 2
  EXPECT_EQ(session.state.origTotal, 12 + 28);
  correct(0, "99999");
  EXPECT_EQ(session.state.origTotal, 12 + 14 * 99999);
}

TEST_F(BillLinesTest, f4RemovesTheCurrentLineWhereverTheSelectionIs) {
  for (const bool editing : {false, true}) {
    enter(kWater);
    enter(kCrate);
    if (editing) press(kUp);
    press(kF4);
    EXPECT_EQ(stock("1001"), "99");
    EXPECT_EQ(till.status, "1件商品，原价总计2合计2.5元");
    EXPECT_EQ(cell(0, BillRow::kName), "矿泉水");
    EXPECT_EQ(session.state.selected, 1);
    expectInStep();
    press(kF4);
    press(kUp);
    EXPECT_TRUE(session.state.onEntryRow) << "a committed line is out of reach";
    press(kF12);
  }
}

TEST_F(BillLinesTest, arrowsReachOnlyTheCurrentLineAndTheEntryRow) {
  press(kUp);
  press(kDown);
  EXPECT_EQ(session.state.selected, 0);
  enter(kWater);
  enter(kCrate);
  press(kUp);
  EXPECT_EQ(session.state.selected, 1);
  EXPECT_EQ(till.text, "1");
  press(kUp);
  EXPECT_EQ(session.state.selected, 1);
  press(kDown);
  EXPECT_EQ(session.state.selected, 2);
  EXPECT_TRUE(session.state.onEntryRow);
  session.listClicked();
  EXPECT_EQ(session.state.selected, 2);
}

TEST_F(BillLinesTest, f12PutsEveryLineBackAndStartsTheNextBill) {
  press(kF12);
  EXPECT_EQ(onlyMessage(), "没有商品，无需删除！");
  const int first = session.state.curBill->BillNo();
  enter(kWater);
  enter(kCrate);
  enter("QB-01");
  press(kF12);
  EXPECT_EQ(stock("1001"), "100");
  EXPECT_EQ(stock("2001"), "0");
  EXPECT_EQ(stored("count(*) as v from sell"), "1");
  EXPECT_GT(session.state.curBill->BillNo(), first);
  EXPECT_EQ(till.status, "");
  expectInStep();
}

TEST_F(BillLinesTest, enterOnAnEmptyLineSettles) {
  enter("");
  EXPECT_EQ(onlyMessage(), "没有商品，无需结账！");
  enter(kWater);
  enter(kCrate);
  correct(0, "2");
  enter("");
  EXPECT_EQ(stored("count(*) as v from sell where state = 1 and amount = 58.5"), "1");
  EXPECT_EQ(till.status, "应收58.5 现金58.5银行卡0储值卡0优惠0找零0元");
  enter(kWater);
  press(kUp);
  press(kF1);
  EXPECT_EQ(stored("count(*) as v from sell where state = 1"), "2");
  EXPECT_EQ(stock("1001"), "74");
}
