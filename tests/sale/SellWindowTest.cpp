#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QScreen>
#include <QScrollBar>
#include <QTableView>
#include <QTest>

#include "Hands.h"
#include "TillFixture.h"
#include "app/SyncProgram.h"
#include "sale/BillView.h"
#include "sale/frmSell.h"
#include "saleslib/SyncState.h"

using enum Qt::Key;

/// The sale window, driven by real key events while it is open.
class SellWindowTest : public TillFixture {
 protected:
  /// Opens the screen, lets the cashier act, and leaves with Esc unless the screen is left already.
  void show(const std::function<void()>& cashier) {
    hands.at("frmSell", [&](QWidget&) {
      ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
      ASSERT_TRUE(editor()->hasFocus());
      cashier();
      if (window.isVisible()) press({Key_Escape});
    });
    window.openModal();
    EXPECT_TRUE(hands.idle());
  }
  QLineEdit* editor() { return window.findChild<QLineEdit*>("t"); }
  QTableView* list() { return window.findChild<QTableView*>("lv"); }
  /// The texts of the labels, the input line and the rows: number, name, price, quantity, discount
  /// and amount.
  std::string picture() {
    QString all;
    for (const char* name : {"title1", "title3", "txtmoney"}) {
      all += window.findChild<QLabel*>(name)->text() + "|";
    }
    all += "[" + editor()->text() + "]";
    const QAbstractItemModel& rows = *list()->model();
    for (int row = 0; row < rows.rowCount(); ++row) {
      all += "|";
      for (int column = 0; column <= BillRow::kMoney; ++column) {
        const QString cell = rows.index(row, column).data().toString();
        if (column != BillRow::kCode && !cell.isEmpty()) all += cell + " ";
      }
    }
    return all.toStdString();
  }
  void press(std::initializer_list<Qt::Key> keys) {
    for (const Qt::Key key : keys) QTest::keyClick(editor(), key);
  }
  void scan(const char* code) {
    QTest::keyClicks(editor(), code);
    press({Key_Return});
  }

  Hands hands;
  frmSell window{pos, {}, [] {}};
};

TEST_F(SellWindowTest, RingsCorrectsDeletesAndSettles) {
  show([this] {
    scan(kWater);
    scan(kCrate);
    EXPECT_EQ(window.findChild<BillView*>("lv")->currentRow(), 2);
    press({Key_Up});
    scan("3");  // replaces the shown value
    press({Key_Up, Key_Right});
    scan("0.9");
    EXPECT_EQ(picture(),
              "流水号：1   收银员：张三||4件商品，原价合计86   合计78.10元|[3]|"
              "1 矿泉水 2.50 1 1 2.50 |2 矿泉水整箱 28.00 3 0.9 75.60 |3 ");
    press({Key_F4});
    scan("80g");
    hands.type("frmEndSell", "20").press("frmEndSell", {Key_Return});
    press({Key_Return});
    EXPECT_TRUE(QTest::qWaitFor([this] { return editor()->hasFocus(); }));
    EXPECT_EQ(picture(),
              "流水号：2   收银员：张三|上一单：金额 16.0实收现金20.0银行卡0.0储值卡0.0找零4.0  "
              "优惠0|应收16 现金20银行卡0储值卡0优惠0找零4元|[]|");
  });
  EXPECT_EQ(stock() + stored("group_concat(state) as v from sell"), "991");
}

TEST_F(SellWindowTest, TheEditorCoversTheEditedCellAndTheListNeverHasTheFocus) {
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
    press({Key_Backspace});
    EXPECT_TRUE(covered(40, BillRow::kNumber, BillRow::kCode)) << "typing brings it back";
    press({Key_Up, Key_Right, Key_Up});
    EXPECT_TRUE(covered(39, BillRow::kQuantity, BillRow::kQuantity)) << "where typing goes";
    QTest::mouseClick(list()->viewport(), Qt::LeftButton, {}, {60, 60});
    EXPECT_TRUE(covered(40, BillRow::kNumber, BillRow::kCode));
    EXPECT_TRUE(editor()->hasFocus());
    press({Key_F12});
  });
}

TEST_F(SellWindowTest, TheLineOfKeysFollowsTheKeyboardMap) {
  pos.gKeyBoard.mF5 = 'G';
  pos.gKeyBoard.mF6 = 0;
  pos.gKeyBoard.mUp = 104;
  show([] {});
  EXPECT_EQ(window.findChild<QLabel*>("ViewF")->text().toStdString(),
            "ESC=退出 Enter=结账 F2=会员卡 F3=增加会员 F4删除最后一行 G挂单 "
            "F8补打小票查询销售 F9会员充值 F12=整单撤消 小键盘\u00A08/↓/←/→改数量折扣");
}

// The list paints only what changes: what is on the screen must be what painting it whole gives.
TEST_F(SellWindowTest, NothingOldStaysOnTheScreen) {
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
    press({Key_Up});
    screenIsWhole("going to the last line");
    scan("12345");
    screenIsWhole("correcting it");
    press({Key_F4});
    screenIsWhole("deleting it");
    hands.press("frmMsg", {Key_Space});
    scan("6900000000000");
    screenIsWhole("a message has lain over it");
    press({Key_F12});
    screenIsWhole("cancelling");
  });
}

// It paints plain texts itself, on whole pixels, and leaves all others to the toolkit.
TEST_F(SellWindowTest, TheInputLineLooksAsTheToolkitPaintsIt) {
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

TEST_F(SellWindowTest, TheMenuKeyOpensTheFunctionMenuAndTheCloseBoxAsksTheSession) {
  show([this] {
    scan(kWater);
    QKeyEvent repeated(QEvent::KeyPress, Key_Return, Qt::NoModifier, "\r", true);
    for (int i = 0; i < 3; ++i) QApplication::sendEvent(editor(), &repeated);
    EXPECT_EQ(list()->model()->rowCount(), 2) << "a held Enter key settles nothing";
    hands.press("frmMsg", {Key_Space});
    window.close();
    EXPECT_TRUE(window.isVisible());
    press({Key_F12});
    hands.press("myMenu", {Key_Up, Key_Return});
    press({Key_Menu});
    EXPECT_EQ(stored("count(*) as v from sell"), "0") << "left by the menu's last entry";
  });
}

TEST_F(SellWindowTest, GoodsScannedOverAMessageAreNotRungAndThatIsSaid) {
  const auto scanOver = [](QWidget& message) {
    QTest::keyClicks(&message, kCrate);
    QTest::keyClick(&message, Key_Return);
  };
  const auto readAndClose = [](QWidget& message) {
    EXPECT_EQ(message.findChild<QLabel*>("Label1")->text().left(10), "出现提示时扫描的商品");
    Hands::pressNow(Key_Escape);
  };
  show([&] {
    hands.at("frmMsg", scanOver).at("frmMsg", readAndClose);
    scan("6900000000000");
    breakStore("insert on sellProducts");
    hands.at("messageBox", scanOver).press("messageBox", {Key_Escape});
    hands.at("frmMsg", readAndClose);
    scan(kWater);
    mendStore();
    EXPECT_EQ(picture(), "流水号：1   收银员：张三|||[]|");
  });
}

TEST_F(SellWindowTest, PricesSeveralMatchesAndHeldBillsAreAskedForInTheirWindows) {
  show([this] {
    hands.press("frmMenu", {Key_Down, Key_Return});
    scan(kDouble);
    hands.type("frmInput", "1.25").press("frmInput", {Key_Return});
    scan(kNoPrice);
    press({Key_F5});
    scan(kCrate);
    press({Key_F5});
    hands.press("frmRecord", {Key_Escape});
    press({Key_F6});
    hands.at("frmRecord", [](QWidget& form) {
      const auto* bills = form.findChild<QTableView*>("listSell")->model();
      EXPECT_EQ(bills->index(1, 1).data().toString(), "28.00");
      Hands::pressNow(Key_Down);
      const auto* goods = form.findChild<QTableView*>("listProducts")->model();
      EXPECT_EQ(goods->index(0, 1).data().toString(), "矿泉水整箱");
      Hands::pressNow(Key_Return);
    });
    press({Key_F6});
    EXPECT_EQ(picture(),
              "流水号：2   收银员：张三||1件商品，合计28元|[]|1 矿泉水整箱 28.00 1 1 28.00 |");
    press({Key_F12});
    hands.press("frmRecord", {Key_Return});
    press({Key_F6});
    EXPECT_EQ(picture(),
              "流水号：1   收银员：张三||2件商品，合计14.75元|[]|"
              "1 红茶 13.50 1 1 13.50 |2 气球 1.25 1 1 1.25 |");
    press({Key_F12});
  });
}

TEST_F(SellWindowTest, SaysInItsHeadingThatTheServerIsAway) {
  const std::filesystem::path file = folder.path() / "data/shop.db";
  show([&] {
    const QLabel& time = *window.findChild<QLabel*>("title2");
    const auto expectHeading = [&](const SyncState& state, const char* heading) {
      SyncPlace(file).write(state);
      pos.sync = std::make_unique<SyncProgram>("/bin/false", DataSource{file, ""});
      QTRY_COMPARE(time.text(), heading);
      EXPECT_GE(time.width(), time.sizeHint().width()) << "all of it can be read";
      for (const char* side : {"title1", "title3"})
        EXPECT_FALSE(window.findChild<QLabel*>(side)->geometry().intersects(time.geometry()));
    };
    using enum SyncState::Refusal;
    expectHeading({{{2026, 11, 22}, 8, 53, 3}, 8, kNone, 0}, "09:05:03　离线 12 分钟，8 单未上传");
    expectHeading({{{2026, 11, 22}, 9, 5, 3}, 0, kTill, 0},
                  "09:05:03　服务器不认这台收银机，请告诉店主");
    expectHeading({{{2026, 11, 22}, 9, 5, 3}, 0, kCertificate, 0},
                  "09:05:03　服务器的证书不对，请告诉店主");
    expectHeading({{{2026, 11, 22}, 9, 4, 4}, 8, kNone, 0}, "当前时间：09:05:03");
  });
}
