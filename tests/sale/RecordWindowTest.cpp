#include <QTableView>

#include "Hands.h"
#include "TillFixture.h"
#include "sale/frmRecord.h"

/// The list of held bills, driven by real key events, with two bills of one and two lines.
class RecordWindow : public TillFixture {
 protected:
  RecordWindow() {
    EXPECT_TRUE(session.open());
    enter(kWater);
    press(kF5);
    enter(kCrate);
    enter(kApples);
    press(kF5);
  }
  std::string row(const char* list, int row) const {
    const QAbstractItemModel* model = window.findChild<QTableView*>(list)->model();
    std::string cells;
    for (int column = 0; row < model->rowCount() && column < model->columnCount(); ++column) {
      cells += model->index(row, column).data().toString().toStdString() + " ";
    }
    return cells;
  }

  Hands hands;
  frmRecord window{pos.gKeyBoard};
};

TEST_F(RecordWindow, showsEachBillWithItsGoods) {
  hands.at("frmRecord", [this](QWidget&) {
    EXPECT_EQ(row("listSell", 0) + row("listSell", 1), "1 2.50 09:05 2 33.98 09:05 ");
    EXPECT_EQ(row("listSell", 2), "");
    Hands::pressNow(Qt::Key_Down);
    EXPECT_EQ(row("listProducts", 1), std::string(kApples) + " 苹果 斤 5.98 1 1 5.98 ");
    Hands::pressNow(Qt::Key_Return);
  });
  EXPECT_EQ(window.Load(session.state.heldBills, now), 2);
}

TEST_F(RecordWindow, keysChooseOrLeave) {
  pos.gKeyBoard.mEnter = 120;  // F9
  const std::pair<std::initializer_list<Qt::Key>, std::int32_t> cases[] = {
      {{Qt::Key_Escape}, 0},
      {{Qt::Key_Down, Qt::Key_Down, Qt::Key_F9}, 2},
      {{Qt::Key_Tab, Qt::Key_F9, Qt::Key_Backtab, Qt::Key_F9}, 1},
      {{Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Space}, 0}};
  for (const auto& [keys, chosen] : cases) {
    hands.press("frmRecord", keys);
    EXPECT_EQ(window.Load(session.state.heldBills, now), chosen);
  }
  hands.press("frmRecord", {Qt::Key_F9, Qt::Key_Escape});
  EXPECT_EQ(window.Load({}, now), 0);
}
