#include <gmock/gmock.h>

#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QTableView>

#include "Hands.h"
#include "TestShop.h"
#include "base/Gbk.h"
#include "reports/frmCount.h"
#include "reports/frmSearch.h"

namespace {

using enum Qt::Key;
using testing::HasSubstr;

QString cell(QWidget& window, const char* list, int row, int column) {
  const auto* view = window.findChild<QTableView*>(list);
  return view->model()->index(row, column).data().toString();
}

int rows(QWidget& window) {
  return window.findChild<QTableView*>("ListView1")->model()->rowCount();
}

QString caption(QWidget& window, const char* label) {
  return window.findChild<QLabel*>(label)->text();
}

/// Presses keys until that control has the focus.
void tabTo(QWidget& window, const char* control) {
  for (int i = 0; i < 30 && window.focusWidget()->objectName() != control; ++i)
    Hands::pressNow(Key_Tab);
  EXPECT_EQ(window.focusWidget()->objectName(), control);
}

QString boxText(QWidget& box) {
  return qobject_cast<QMessageBox*>(&box)->text();
}

void answer(Hands& hands, const char* text) {
  hands.at("messageBox", [text](QWidget& box) {
    EXPECT_EQ(boxText(box), text);
    Hands::pressNow(Key_Return);
  });
}

TEST(frmCountTest, ShowsTheDayAndPrintsTheSheet) {
  TestShop shop;
  shop.settle(3, "2026-11-22 09:05:03", 1.25, "12");
  shop.settle(4, "2026-11-22 10:00:00", 2, "0.5");
  shop.settle(5, "2026-11-21 23:59:59", 9, "99");
  shop.pos().gPosSet.PPort = "LPT1";
  Hands hands;
  hands.at("frmCount", [&](QWidget& form) {
    EXPECT_EQ(caption(form, "Label1"), "张三今日销售统计表");
    EXPECT_EQ(caption(form, "lblMsg"),
              "今日累计发生 [2] 笔交易，共交易 [3.25] 件商品，交易额 [12.50] 元");
    const char* const first[] = {"3", "12.00", "1.25", "2026-11-22 09:05:03", "张三"};
    for (int column = 0; column < 5; ++column)
      EXPECT_EQ(cell(form, "listSell", 0, column), first[column]);
    tabTo(form, "print1");
    Hands::pressNow(Key_Space);
    shop.pos().gPosSet.PPort = "USB";
    Hands::pressNow(Key_Space);
    shop.pos().gPosSet.PPort = "usb";
    Hands::pressNow(Key_Space);
    Hands::pressNow(Key_Escape);
  });
  frmCount(shop.pos()).init();
  const std::string sheet = shop.bytes("lpt1");
  EXPECT_THAT(sheet, HasSubstr(gbk::encode("今日累计发生 [2] 笔交易") + "\r\n"));
  EXPECT_THAT(sheet, testing::EndsWith("_ _ _\r\n"));
  EXPECT_EQ(shop.papersPrinted(), 1u);
}

TEST(frmCountTest, ADayWithoutSalesPrintsNothing) {
  TestShop shop;
  shop.pos().gPosSet.PPort = "USB";
  shop.pos().gKeyBoard.mEsc = 'Q';
  Hands hands;
  hands.at("frmCount", [&](QWidget& form) {
    tabTo(form, "print1");
    Hands::pressNow(Key_Escape);
    EXPECT_TRUE(form.isVisible());
    Hands::pressNow(Key_Space);
    EXPECT_EQ(caption(form, "lblMsg"),
              "今日累计发生 [0] 笔交易，共交易 [0] 件商品，交易额 [0.00] 元");
    Hands::pressNow(Key_Q);
  });
  answer(hands, "没有可打印的内容！");
  frmCount(shop.pos()).init();
  EXPECT_EQ(shop.papersPrinted(), 0u);
}

class frmSearchTest : public testing::Test {
 protected:
  void open() {
    form_ = std::make_unique<frmSearch>(shop_.pos());
    form_->open();
    ASSERT_TRUE(QTest::qWaitForWindowActive(form_.get()));
    form_->findChild<QWidget*>("zjmtm")->setFocus();
  }
  void type(const char* control, const QString& text) {
    tabTo(*form_, control);
    qobject_cast<QLineEdit*>(form_->focusWidget())->selectAll();
    QTest::keyClicks(form_->focusWidget(), text);
  }
  void press(const char* control, Qt::Key key = Key_Return) {
    tabTo(*form_, control);
    Hands::pressNow(key);
  }
  bool showsRows(int count) {
    return QTest::qWaitFor([&] { return rows(*form_) == count && state().startsWith("共"); });
  }
  QString state() { return caption(*form_, "lblState"); }
  QString at(int row, int column) { return cell(*form_, "ListView1", row, column); }

  TestShop shop_;
  std::unique_ptr<frmSearch> form_;
};

TEST_F(frmSearchTest, SearchesSortsAndPrintsByKeysAlone) {
  shop_.sell(1, "2026-11-22 09:00:00", "A1", 2, "2.5", "5");
  shop_.sell(2, "2026-11-22 09:00:01", "C3", 10, "1.5", "15");
  open();
  Hands hands;
  answer(hands, "没有可打印的内容！");
  press("Command2");
  type("zjmtm", "K");
  press("zjmtm");
  ASSERT_TRUE(showsRows(3));
  press("ListView1", Key_Home);
  for (int i = 0; i < 5; ++i) Hands::pressNow(Key_Right);
  Hands::pressNow(Key_Space);
  EXPECT_EQ(at(0, 5), "10");
  Hands::pressNow(Key_Space);
  EXPECT_EQ(at(0, 5), "2");
  EXPECT_EQ(at(2, 0), "合计");
  press("Command2");
  press("Command3");
  EXPECT_EQ(shop_.papersPrinted(), 2u);
  press("zjmtm", Key_Escape);
  EXPECT_FALSE(form_->isVisible());
}

TEST_F(frmSearchTest, RefusesWhatIsNoNumberAndKeepsTheList) {
  shop_.sell(1, "2026-11-22 09:00:00", "A1", 2, "2.5", "5");
  open();
  type("xssl", "viele");
  press("xssl");
  ASSERT_TRUE(showsRows(2));
  EXPECT_EQ(form_->findChild<QLineEdit*>("xssl")->text(), "0");
  Hands hands;
  answer(hands, "单号应为数字！");
  type("numberSerch", "eins");
  press("numberSerch");
  EXPECT_EQ(rows(*form_), 2);
  type("numberSerch", "9");
  press("numberSerch");
  ASSERT_TRUE(showsRows(1));
  EXPECT_EQ(at(0, 5), "0");
}

TEST_F(frmSearchTest, AnInvertedPeriodIsSaidAndFindsNothing) {
  shop_.sell(1, "2026-11-22 09:00:00", "A1", 2, "2.5", "5");
  open();
  press("DtBegin", Key_Up);
  Hands hands;
  answer(hands, "起止时间不对！");
  press("cmdSearch");
  EXPECT_EQ(form_->focusWidget()->objectName(), "Dtfinish");
  ASSERT_TRUE(showsRows(1));
}

TEST_F(frmSearchTest, AStoppedQueryLeavesTheListAsItWas) {
  shop_.sell(1, "2026-11-22 09:00:00", "C3", 2, "2.5", "5");
  open();
  type("zjmtm", "KQS");
  press("zjmtm");
  ASSERT_TRUE(showsRows(2));
  shop_.sellMany(20000);
  type("zjmtm", "   ");
  press("zjmtm");
  Hands::pressNow(Key_Escape);  // while it sorts
  EXPECT_EQ(rows(*form_), 2);
  press("zjmtm");
  ASSERT_TRUE(QTest::qWaitFor([&] { return rows(*form_) > 2; }));
  if (!state().startsWith("共")) {  // while it reads
    Hands::pressNow(Key_Escape);
    EXPECT_EQ(state(), "查询已停止");
    EXPECT_EQ(rows(*form_), 2);
    EXPECT_EQ(at(0, 3), "矿泉水");
  }
  press("zjmtm");
  ASSERT_TRUE(showsRows(20002));
  EXPECT_EQ(at(20001, 5), "20002");
}

TEST_F(frmSearchTest, ExportsWhereItIsToldAndSaysWhereItCannot) {
  shop_.sell(1, "2026-11-22 09:00:00", "A1", 2, "2.5", "5");
  open();
  press("zjmtm");
  ASSERT_TRUE(showsRows(2));
  Hands hands;
  const auto name = [&](const std::string& file) {
    hands.at("dlgExport", [file](QWidget& dialog) {
      auto* edit = dialog.findChild<QLineEdit*>("fileNameEdit");
      edit->setText(QString::fromStdString(file));
      QTest::keyClick(edit, Key_Return);
    });
  };
  name(shop_.file("found"));
  press("Command1");
  EXPECT_EQ(state(), "已导出 found.xlsx");
  name(shop_.file("found.csv"));
  press("Command1");
  EXPECT_THAT(shop_.bytes("found.csv"), HasSubstr("期间：2026-11-22 至 2026-11-22 23:59:59"));
  name("/proc/found.csv");
  hands.at("messageBox", [](QWidget& box) {
    EXPECT_TRUE(boxText(box).contains("/proc/found.csv"));
    Hands::pressNow(Key_Return);
  });
  press("Command1");
}

}  // namespace
