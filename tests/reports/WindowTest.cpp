#include <gmock/gmock.h>

#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QTableView>
#include <QTimer>

#include "Hands.h"
#include "TestShop.h"
#include "base/Gbk.h"
#include "reports/ResultColumns.h"
#include "reports/frmCount.h"
#include "reports/frmReport.h"
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

void answer(Hands& hands, const char* text) {
  hands.at("messageBox", [text](QWidget& box) {
    EXPECT_EQ(qobject_cast<QMessageBox*>(&box)->text(), text);
    Hands::pressNow(Key_Return);
  });
}

TEST(frmCountTest, ShowsTheDayAndPrintsTheSheet) {
  TestShop shop;
  Hands hands;
  shop.pos().gPosSet.PModel = 2;
  hands.at("frmCount", [&](QWidget& form) {
    shop.pos().gPosSet.PPort = "LPT1";
    tabTo(form, "print1");
    Hands::pressNow(Key_Space);
    EXPECT_EQ(caption(form, "lblMsg"),
              "今日累计发生 [0] 笔交易，共交易 [0] 件商品，交易额 [0.00] 元");
    Hands::pressNow(Key_Escape);
  });
  frmCount(shop.pos()).init();
  EXPECT_THAT(shop.bytes("lpt1"), HasSubstr(gbk::encode("[0] 笔交易\r\n共交易 [0] 件商品")));

  shop.settle(3, "2026-11-22 09:05:03", 1.25, "12");
  shop.settle(4, "2026-11-22 10:00:00", 2, "0.5");
  shop.settle(5, "2026-11-21 23:59:59", 9, "99");
  shop.settle(6, "2026-11-22 11:00:00", 9, "99");
  shop.store().run("update sell set operator_id = 8 where id = 6");
  shop.store().run("update sell set phone_pay = 0.5 where id >= 4");
  ASSERT_EQ(shop.pos().gSysParam.set("PhonePay", "1"), "");
  hands.at("frmCount", [&](QWidget& form) {
    QStringList rows;
    for (int i = 0; i < 12; ++i) rows += cell(form, "listSell", i / 6, i % 6);
    EXPECT_EQ(rows.join('|'),
              "3|12.00|1.25|2026-11-22 09:05:03|张三|0.00|"
              "4|0.50|2|2026-11-22 10:00:00|张三|0.50");
    EXPECT_TRUE(caption(form, "lblMsg").endsWith("交易额 [12.50] 元，其中扫码 [0.50] 元"));
    tabTo(form, "print1");
    for (const char* port : {"LPT1", "USB", "usb"}) {
      shop.pos().gPosSet.PPort = port;
      Hands::pressNow(Key_Space);
    }
    Hands::pressNow(Key_Escape);
  });
  frmCount(shop.pos()).init();
  EXPECT_THAT(
      shop.bytes("lpt1"),
      HasSubstr(gbk::encode(
          "[2] 笔交易\r\n共交易 [3.25] 件商品\r\n交易额 [12.50] 元\r\n其中扫码 [0.50] 元\r\n")));
  EXPECT_THAT(shop.paperWidthsMm(), testing::ElementsAre(58)) << "\"usb\" is no printer";
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
  shop_.pos().gPosSet.PModel = 2;
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
  EXPECT_EQ(at(0, 5) + at(2, 0), "2合计");
  press("Command2");
  press("Command3");
  EXPECT_THAT(shop_.paperWidthsMm(), testing::ElementsAre(58, 58));
  press("zjmtm", Key_Escape);
  EXPECT_FALSE(form_->isVisible());
}

TEST_F(frmSearchTest, WhatCannotBeSearchedOrWrittenIsSaid) {
  shop_.sell(1, "2026-11-22 09:00:00", "A1", 2, "2.5", "5");
  open();
  Hands hands;
  type("xssl", "viele");
  press("xssl");
  ASSERT_TRUE(showsRows(2));
  answer(hands, "单号应为数字！");
  type("numberSerch", "eins");
  press("numberSerch");
  EXPECT_EQ(rows(*form_), 2) << "the list stays";
  form_->findChild<QLineEdit*>("numberSerch")->clear();
  press("DtBegin", Key_Up);
  answer(hands, "起止时间不对！");
  press("cmdSearch");
  EXPECT_EQ(form_->focusWidget()->objectName(), "Dtfinish");
  ASSERT_TRUE(showsRows(1)) << "an inverted period finds nothing";
}

TEST_F(frmSearchTest, TheLastBillIsPrintedAgainByOneKeyWithItsAmountsInSight) {
  shop_.sell(2, "2026-11-20 00:00:00", "A1", 2, "2.5", "5");
  shop_.sell(3, "2026-11-22 09:00:00", "A1", 2, "2.5", "5");
  shop_.settle(2, "2026-11-20 00:00:00", 2, "5");
  shop_.store().run("update sellProducts set name = ?", std::string(60, 'W'));
  shop_.store().run("update sell set phone_pay = 5");
  ASSERT_EQ(shop_.pos().gSysParam.set("PhonePay", "1"), "");
  open();
  form_->resize(1000, 740);
  QTest::keyClick(form_.get(), Key_L, Qt::AltModifier);
  ASSERT_TRUE(showsRows(2));
  EXPECT_TRUE(state().endsWith("其中扫码 [5.00] 元。"));
  EXPECT_EQ(shop_.paperWidthsMm().size(), 1u);
  EXPECT_EQ(form_->findChild<QLineEdit*>("numberSerch")->text() + at(0, 8), "25");
  const auto* list = form_->findChild<QTableView*>("ListView1");
  EXPECT_LE(list->columnViewportPosition(kColumnUnitCost), list->viewport()->width());
}

TEST_F(frmSearchTest, DatesAndTimesAreTakenAsTypedAndImpossibleOnesSaid) {
  shop_.sell(1, "2026-11-21 07:00:00", "A1", 2, "2.5", "5");
  shop_.sell(2, "2026-11-22 08:30:01", "A1", 2, "2.5", "5");
  open();
  const auto typeNow = [&](const char* text) { QTest::keyClicks(form_->focusWidget(), text); };
  tabTo(*form_, "DTPBeginTime");
  typeNow("08:30:01");
  Hands::pressNow(Key_Return);
  ASSERT_TRUE(showsRows(1));
  typeNow("083000");
  Hands::pressNow(Key_Return);
  ASSERT_TRUE(showsRows(2)) << "a second typing is not taken";
  tabTo(*form_, "DtBegin");
  typeNow("2026-11-21");
  Hands::pressNow(Key_Tab);
  EXPECT_EQ(form_->focusWidget()->objectName(), "DTPBeginTime");
  typeNow("6.59");
  Hands::pressNow(Key_Return);
  ASSERT_TRUE(showsRows(3));
  Hands hands;
  for (const Qt::Key leaving : {Key_Tab, Key_Return}) {
    typeNow("24:00");
    answer(hands, "没有“24:00”这个时间！请按 08:30:00 或 083000 的样子输入。");
    Hands::pressNow(leaving);
    ASSERT_TRUE(QTest::qWaitFor(
        [&] { return QApplication::activeModalWidget() == form_.get() && hands.idle(); }));
    EXPECT_EQ(form_->focusWidget()->objectName(), "DTPBeginTime");
  }
  EXPECT_EQ(rows(*form_), 3) << "searched all the same";
}

TEST_F(frmSearchTest, ExportsGoToANameInTheOwnersFolderAndNowhereElse) {
  open();
  press("zjmtm");
  ASSERT_TRUE(showsRows(1));
  Hands hands;
  const auto name = [&](const QString& text) {
    hands.type("dlgExport", text).press("dlgExport", {Key_Return});
  };
  for (const char* refused : {"../x", "/tmp/x", "..", "data\\POS.mdb", " "}) {
    name(refused);
    hands.press("messageBox", {Key_Return});
  }
  name("x");
  press("Command1");
  const auto file = shop_.pos().folder / "Exports" / "x.xlsx";
  EXPECT_TRUE(exists(file));
  EXPECT_TRUE(state().contains("x.xlsx"));
  std::ofstream(file) << "old";
  name("x");
  answer(hands, "文件已经存在，要覆盖吗？\nx.xlsx");
  name("x.csv");
  press("Command1");
  EXPECT_EQ(file_size(file), 3u) << "replaced without a question";
  EXPECT_TRUE(exists(shop_.pos().folder / "Exports" / "x.csv"));
  shop_.pos().configIni.write("Till", "ExportFolder", "/proc/none");
  name("x");
  answer(hands, "不能新建导出文件夹 /proc/none，请检查设置和权限。");
  press("Command1");
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
}

TEST(frmReportTest, WritesThePeriodsReportToTheFolderUnlessItIsStopped) {
  TestShop shop;
  Hands hands;
  shop.settle(3, "2026-11-01 09:05:03", 1, "12.5");
  shop.settle(4, "2026-10-31 10:00:00", 2, "99");
  const std::string name = "Exports/经营报表 2026-11-01 2026-11-22.html";
  hands.at("frmReport", [&](QWidget& form) {
    QTimer::singleShot(0, [] { Hands::pressNow(Key_Escape); });
    Hands::pressNow(Key_Return);
    EXPECT_EQ(caption(form, "lblState"), "已停止，没有写文件");
    EXPECT_EQ(shop.bytes(name), "");
    Hands::pressNow(Key_Return);
    EXPECT_EQ(caption(form, "lblState").remove(QChar(0x200B)).toStdString(),
              "已写到 " + (shop.pos().folder / name).string());
    Hands::pressNow(Key_Escape);
  });
  frmReport(shop.pos()).exec();
  EXPECT_THAT(shop.bytes(name), testing::AllOf(HasSubstr("<td>2026-11-01</td>"),
                                               testing::Not(HasSubstr("99.00</td>"))));
}

}  // namespace
