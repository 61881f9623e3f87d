#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QScreen>
#include <QScrollBar>
#include <QTableView>
#include <QTest>

#include "Hands.h"
#include "TillFixture.h"
#include "sale/BillView.h"
#include "sale/frmSell.h"

/// The sale window, driven by real key events while it is open.
class SellWindow : public TillFixture {
 protected:
  /// Opens the screen, lets the cashier act, and leaves with Esc unless the screen is left already.
  void show(const std::function<void()>& cashier) {
    hands.at("frmSell", [&](QWidget&) {
      ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
      ASSERT_TRUE(editor()->hasFocus());
      cashier();
      if (window.isVisible()) press(Qt::Key_Escape);
    });
    window.openModal();
    EXPECT_TRUE(hands.idle());
  }
  QLineEdit* editor() { return window.findChild<QLineEdit*>("t"); }
  QTableView* list() { return window.findChild<QTableView*>("lv"); }
  QString label(const char* name) { return window.findChild<QLabel*>(name)->text(); }
  QString shown(int row, BillRow::Column column) {
    return list()->model()->index(row, column).data().toString();
  }
  void press(Qt::Key key) { QTest::keyClick(editor(), key); }
  void scan(const char* code) {
    QTest::keyClicks(editor(), code);
    press(Qt::Key_Return);
  }

  Hands hands;
  frmSell window{pos, {}, [] {}};
};

TEST_F(SellWindow, ringsCorrectsDeletesAndSettles) {
  show([this] {
    EXPECT_EQ(label("title1"), "流水号：1   收银员：张三");
    scan(kWater);
    scan(kCrate);
    EXPECT_EQ(window.findChild<BillView*>("lv")->currentRow(), 2);
    press(Qt::Key_Up);
    EXPECT_EQ(editor()->text(), "1");
    QTest::keyClicks(editor(), "3");
    EXPECT_EQ(editor()->text(), "3") << "the first key replaces the shown value";
    press(Qt::Key_Return);
    EXPECT_EQ(shown(1, BillRow::kMoney), "84.00");
    press(Qt::Key_Up);
    press(Qt::Key_Right);
    scan("0.9");
    EXPECT_EQ(label("txtmoney"), "4件商品，原价合计86   合计78.10元");
    press(Qt::Key_F4);
    scan("80g");

    hands.type("frmEndSell", "20").press("frmEndSell", {Qt::Key_Return});
    press(Qt::Key_Return);
    EXPECT_EQ(label("txtmoney"), "应收16 现金20银行卡0储值卡0优惠0找零4元");
    EXPECT_TRUE(QTest::qWaitFor([this] { return editor()->hasFocus(); }));
    EXPECT_EQ(label("title3").left(11), "上一单：金额 16.0");
    EXPECT_EQ(list()->model()->rowCount(), 1);
  });
  EXPECT_EQ(stock(), "99");
  EXPECT_EQ(stored("group_concat(state) as v from sell"), "1");
}

TEST_F(SellWindow, theEditorCoversTheEditedCellAndTheListNeverHasTheFocus) {
  show([this] {
    for (int i = 0; i < 40; ++i) scan(kWater);
    const auto covered = [this](int row, int column, int last) {
      constexpr int kFrame = 2;
      const QRect cell = list()->visualRect(list()->model()->index(row, column)) |
                         list()->visualRect(list()->model()->index(row, last));
      return editor()->geometry() == cell.adjusted(kFrame, kFrame, -kFrame, -kFrame) &&
             list()->viewport()->rect().contains(cell);
    };
    EXPECT_TRUE(covered(40, BillRow::kNumber, BillRow::kCode));
    const int row = list()->rowHeight(0);
    list()->verticalScrollBar()->setValue(row * 3 / 2);
    EXPECT_EQ(list()->rowViewportPosition(1), 0) << "no row is half shown";
    EXPECT_EQ(list()->viewport()->height() % row, 0);
    press(Qt::Key_Backspace);
    EXPECT_TRUE(covered(40, BillRow::kNumber, BillRow::kCode)) << "typing brings it back";
    for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Right, Qt::Key_Up}) press(key);
    EXPECT_TRUE(covered(39, BillRow::kQuantity, BillRow::kQuantity))
        << "the frame is where typing goes";
    QTest::mouseClick(list()->viewport(), Qt::LeftButton, {}, {60, 60});
    EXPECT_TRUE(covered(40, BillRow::kNumber, BillRow::kCode));
    EXPECT_TRUE(editor()->hasFocus());
    press(Qt::Key_F12);
  });
}

// The list paints only what changes: what is on the screen must be what painting it whole gives.
TEST_F(SellWindow, nothingOldStaysOnTheScreen) {
  const auto screenIsWhole = [this](const char* after) {
    QCoreApplication::processEvents();
    QPixmap shown = window.screen()->grabWindow(window.winId());
    QPixmap whole = window.grab();
    for (QPixmap* each : {&shown, &whole}) {
      const QRect cursor(editor()->mapTo(&window, QPoint()), editor()->size());
      QPainter(each).fillRect(cursor, Qt::white);  // it blinks
      *each = each->copy({list()->mapTo(&window, QPoint()), list()->size()});
    }
    EXPECT_TRUE(shown.toImage() == whole.toImage().convertedTo(shown.toImage().format())) << after;
  };
  show([&] {
    for (int i = 0; i < 30; ++i) scan(kWater);
    screenIsWhole("ringing more than fits");
    press(Qt::Key_Up);
    screenIsWhole("going to the last line");
    scan("12345");
    screenIsWhole("correcting it");
    press(Qt::Key_F4);
    screenIsWhole("deleting it");
    hands.press("frmMsg", {Qt::Key_Space});
    scan("6900000000000");
    screenIsWhole("a message has lain over it");
    press(Qt::Key_F12);
    screenIsWhole("cancelling");
  });
}

// It paints plain texts itself, on whole pixels, and leaves all others to the toolkit.
TEST_F(SellWindow, theInputLineLooksAsTheToolkitPaintsIt) {
  QApplication::setCursorFlashTime(0);
  const auto inked = [this] {
    const QImage line = editor()->grab().toImage().convertToFormat(QImage::Format_Mono);
    QRect all;
    for (int y = 0; y < line.height(); ++y) {
      for (int x = 0; x < line.width(); ++x) {
        if (line.pixelColor(x, y) == Qt::black) all |= QRect(x, y, 1, 1);
      }
    }
    return all;
  };
  const auto looksTheSame = [&](const char* what) {
    QCoreApplication::processEvents();
    const QRect shown = inked();
    QEvent asIfNew(QEvent::ModifiedChange);
    QApplication::sendEvent(editor(), &asIfNew);
    const QRect toolkits = inked();
    EXPECT_EQ(shown.topLeft(), toolkits.topLeft()) << what;
    EXPECT_EQ(shown.bottom(), toolkits.bottom()) << what;
    EXPECT_NEAR(shown.right(), toolkits.right(), 3) << what;
  };
  show([&] {
    QTest::keyClicks(editor(), "690123");
    looksTheSame("typed digits and the cursor behind them");
    editor()->setCursorPosition(0);
    looksTheSame("the cursor before them");
    editor()->setText(QString(80, '8'));
    looksTheSame("too long, scrolled");
    editor()->clear();
    QTest::keyClicks(editor(), "7x9");
    EXPECT_EQ(editor()->text(), "7x9");
    looksTheSame("short again");
    editor()->selectAll();
    looksTheSame("selected");
    editor()->clear();
  });
}

TEST_F(SellWindow, theMenuKeyOpensTheFunctionMenuAndTheCloseBoxAsksTheSession) {
  show([this] {
    scan(kWater);
    QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true);
    for (int i = 0; i < 3; ++i) QApplication::sendEvent(editor(), &repeated);
    EXPECT_EQ(list()->model()->rowCount(), 2) << "a held Enter key settles nothing";
    hands.press("frmMsg", {Qt::Key_Space});
    window.close();
    EXPECT_TRUE(window.isVisible());
    press(Qt::Key_F12);
    hands.press("myMenu", {Qt::Key_Up, Qt::Key_Return});
    press(Qt::Key_Menu);
    EXPECT_EQ(stored("count(*) as v from sell"), "0") << "left by the menu's last entry";
  });
}

TEST_F(SellWindow, goodsScannedOverAMessageAreNotRungAndThatIsSaid) {
  const auto scanOver = [](QWidget& message) {
    QTest::keyClicks(&message, kCrate);
    QTest::keyClick(&message, Qt::Key_Return);
  };
  const auto readAndClose = [](QWidget& message) {
    EXPECT_EQ(message.findChild<QLabel*>("Label1")->text().left(10), "出现提示时扫描的商品");
    Hands::pressNow(Qt::Key_Escape);
  };
  show([&] {
    hands.at("frmMsg", scanOver).at("frmMsg", readAndClose);
    scan("6900000000000");
    breakStore("insert on sellProducts");
    hands.at("messageBox", scanOver).press("messageBox", {Qt::Key_Escape});
    hands.at("frmMsg", readAndClose);
    scan(kWater);
    mendStore();
    EXPECT_EQ(editor()->text(), "");
    EXPECT_EQ(list()->model()->rowCount(), 1);
  });
}

TEST_F(SellWindow, missingPriceAndSeveralMatchesAreAskedFor) {
  show([this] {
    hands.press("frmMenu", {Qt::Key_Down, Qt::Key_Return});
    scan(kDouble);
    EXPECT_EQ(shown(0, BillRow::kName), "红茶");
    hands.type("frmInput", "1.25").press("frmInput", {Qt::Key_Return});
    scan(kNoPrice);
    EXPECT_EQ(shown(1, BillRow::kPrice), "1.25");
    press(Qt::Key_F12);
  });
}

TEST_F(SellWindow, aHeldBillIsChosenInItsWindow) {
  show([this] {
    for (const char* code : {kWater, kCrate}) {
      scan(code);
      press(Qt::Key_F5);
    }
    hands.press("frmRecord", {Qt::Key_Escape});
    press(Qt::Key_F6);
    EXPECT_EQ(label("title1"), "流水号：3   收银员：张三");
    hands.at("frmRecord", [](QWidget& form) {
      const auto* bills = form.findChild<QTableView*>("listSell")->model();
      EXPECT_EQ(bills->index(1, 1).data().toString(), "28.00");
      Hands::pressNow(Qt::Key_Down);
      const auto* goods = form.findChild<QTableView*>("listProducts")->model();
      EXPECT_EQ(goods->index(0, 1).data().toString(), "矿泉水整箱");
      Hands::pressNow(Qt::Key_Return);
    });
    press(Qt::Key_F6);
    EXPECT_EQ(label("title1"), "流水号：2   收银员：张三");
    EXPECT_EQ(shown(0, BillRow::kMoney), "28.00");
    press(Qt::Key_F12);
    hands.press("frmRecord", {Qt::Key_Return});
    press(Qt::Key_F6);
    press(Qt::Key_F12);
  });
}
