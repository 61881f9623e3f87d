#include <QPushButton>
#include <QTableView>

#include "Hands.h"
#include "TillFixture.h"
#include "sale/frmRecord.h"

/// The list of held bills, driven by real key events, with two bills of one and two lines.
class RecordWindow : public TillFixture {
 protected:
  RecordWindow() {
    EXPECT_TRUE(session.open());
    hold({kWater});
    hold({kCrate, kApples});
  }
  void hold(std::initializer_list<const char*> codes) {
    for (const char* code : codes) enter(code);
    press(116);
  }
  std::int32_t load() { return window.Load(session.state.heldBills, now); }
  QString row(const char* list, int row) const {
    const QAbstractItemModel* model = window.findChild<QTableView*>(list)->model();
    QStringList cells;
    for (int column = 0; row < model->rowCount() && column < model->columnCount(); ++column) {
      cells << model->index(row, column).data().toString();
    }
    return cells.join(" ");
  }

  frmRecord window{pos.gKeyBoard};
};

TEST_F(RecordWindow, showsEachBillWithItsGoods) {
  Hands hands;
  hands.at("frmRecord", [this](QWidget&) {
    EXPECT_EQ(window.focusWidget()->objectName(), "listSell");
    EXPECT_EQ(row("listSell", 0), "1 2.50 09:05");
    EXPECT_EQ(row("listSell", 1), "2 33.98 09:05");
    EXPECT_EQ(row("listSell", 2), "");
    EXPECT_EQ(row("listProducts", 0), QString(kWater) + " 矿泉水 瓶 2.50 1 1 2.50");
    Hands::pressNow(Qt::Key_Down);
    EXPECT_EQ(row("listProducts", 1), QString(kApples) + " 苹果 斤 5.98 1 1 5.98");
    Hands::pressNow(Qt::Key_Return);
  });
  EXPECT_EQ(load(), 2);
  EXPECT_TRUE(hands.idle());
}

TEST_F(RecordWindow, keysChooseOrLeave) {
  pos.gKeyBoard.mEnter = 107;  // "+"
  struct Case {
    std::initializer_list<Qt::Key> keys;
    std::int32_t chosen;
  };
  for (const Case& each : {Case{{Qt::Key_Plus}, 1}, Case{{Qt::Key_Escape}, 0},
                           Case{{Qt::Key_Down, Qt::Key_Down, Qt::Key_Plus}, 2},
                           Case{{Qt::Key_Tab, Qt::Key_Plus, Qt::Key_Backtab, Qt::Key_Plus}, 1},
                           Case{{Qt::Key_Tab, Qt::Key_Escape}, 0},
                           Case{{Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Space}, 0}}) {
    Hands hands;
    hands.at("frmRecord", [&each](QWidget& shown) {
      for (const Qt::Key key : each.keys) {
        QTest::keyClick(shown.focusWidget(), key,
                        key == Qt::Key_Plus ? Qt::KeypadModifier : Qt::NoModifier);
      }
    });
    EXPECT_EQ(load(), each.chosen);
  }
  Hands hands;
  hands.at("frmRecord", [](QWidget& shown) {
    QTest::keyClick(shown.focusWidget(), Qt::Key_Plus, Qt::KeypadModifier);
    EXPECT_TRUE(shown.isVisible()) << "nothing to choose";
    Hands::pressNow(Qt::Key_Escape);
  });
  EXPECT_EQ(window.Load({}, now), 0);
}
