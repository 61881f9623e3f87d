#include <QTableView>
#include <QTimer>

#include "Approvals.h"
#include "ReportsFixture.h"
#include "base/Gbk.h"
#include "base/Text.h"
#include "reports/ResultColumns.h"
#include "reports/frmCount.h"
#include "reports/frmSearch.h"

namespace {

using enum Qt::Key;
using testing::ElementsAre;

using frmCountTest = ReportsFixture;

TEST_F(frmCountTest, ShowsTheDayAndPrintsTheSheet) {
  Hands hands;
  pos.gPosSet.PModel = 2;
  pos.gPosSet.PPort = "LPT1";
  const auto printed = [this] {
    const std::string sheet = gbk::decode(fileBytes(folder.file("lpt1")));
    std::filesystem::remove(folder.file("lpt1"));
    return replaced(sheet.substr(0, sheet.find("\r\n\r\n")), "\r\n", "/");
  };
  hands.at("frmCount", [](QWidget& form) { typeAt(form, "print1", " ⎋"); });
  frmCount(pos).init();
  EXPECT_EQ(printed(), "    销售交班表/今日累计发生 [0] 笔交易/共交易 [0] 件商品/交易额 [0.00] 元");

  settle(3, "2026-11-22 09:05:03", 1.25, "12");
  settle(4, "2026-11-22 10:00:00", 2, "0.5", "0.5");
  settle(5, "2026-11-21 23:59:59", 9, "99", "0.5");
  settle(6, "2026-11-22 11:00:00", 9, "99", "0.5", "", 2);
  setParameter("PhonePay", "1");
  hands.at("frmCount", [this](QWidget& form) {
    EXPECT_EQ(
        rowsOf(form, "listSell", {0, 1, 2, 3, 4, 5}),
        "3 12.00 1.25 2026-11-22 09:05:03 张三 0.00 |4 0.50 2 2026-11-22 10:00:00 张三 0.50 |");
    EXPECT_EQ(Hands::textsOf(form, "lblMsg"),
              "今日累计发生 [2] 笔交易，共交易 [3.25] 件商品，交易额 [12.50] 元，其中扫码 [0.50] "
              "元@listSell");
    for (const char* port : {"LPT1", "USB", "usb"}) {
      pos.gPosSet.PPort = port;
      typeAt(form, "print1", " ");
    }
    Hands::pressNow(Key_Escape);
  });
  frmCount(pos).init();
  EXPECT_EQ(printed(),
            "    销售交班表/今日累计发生 [2] 笔交易/共交易 [3.25] 件商品/交易额 [12.50] "
            "元/其中扫码 [0.50] 元");
  EXPECT_THAT(ports.pageWidthsMm, ElementsAre(58)) << "\"usb\" is no printer";
}

TEST_F(frmCountTest, TheSheetOfAShiftNeedsItsRight) {
  askForApprovals(pos, {"sell"}, {"shift"});
  pos.gPosSet.PPort = "LPT1";
  Hands hands;
  for (const char* answer : {kGivesUp, kApproves}) {
    hands.at("frmCount", [](QWidget& form) { typeAt(form, "print1", " "); });
    hands.type("dlgApproval", answer);
  }
  hands.at("frmCount", [](QWidget&) { Hands::pressNow(Key_Escape); });
  frmCount(pos).init();
  const std::string printed = gbk::decode(fileBytes(folder.file("lpt1")));
  EXPECT_EQ(printed.find("销售交班表"), printed.rfind("销售交班表")) << "once";
  EXPECT_NE(printed.find("销售交班表"), std::string::npos);
}

class frmSearchTest : public ReportsFixture {
 protected:
  void open() {
    form->open();
    ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
    form->findChild<QWidget*>("zjmtm")->setFocus();
  }
  void type(const char* control, const QString& keys) { typeAt(*form, control, keys); }
  /// Typed; then, as soon as the message has gone, these have the focus.
  void typeAndRead(const char* control, const QString& keys, const QString& message) {
    hands.says("messageBox", message);
    type(control, keys);
    EXPECT_TRUE(QTest::qWaitFor(
        [this] { return QApplication::activeModalWidget() == form.get() && hands.idle(); }));
  }
  /// Number, name, quantity and amount of the lines, once the query has ended.
  std::string found() {
    EXPECT_TRUE(QTest::qWaitFor([this] { return state().startsWith("共"); }));
    return rowsOf(*form, "ListView1", {1, 3, 5, 8});
  }
  QString state() { return form->findChild<QLabel*>("lblState")->text(); }
  std::string focus() { return form->focusWidget()->objectName().toStdString(); }

  Hands hands;
  std::unique_ptr<frmSearch> form = std::make_unique<frmSearch>(pos);
};

TEST_F(frmSearchTest, SearchesSortsAndPrintsByKeysAlone) {
  sell(1, "2026-11-22 09:00:00", "A1", 2);
  sell(2, "2026-11-22 09:00:01", "C3", 10);
  pos.gPosSet.PModel = 2;
  pos.gPosSet.PPort = "USB";
  open();
  typeAndRead("Command2", "\n", "没有可打印的内容！");
  type("zjmtm", "K\n");
  EXPECT_EQ(found(), "1 康师傅红烧牛肉面 2 5 |2 矿泉水 10 25 |  12 30 |");
  type("ListView1", "");
  Hands::pressNow(Key_Home);
  Hands::typeNow("→→→→→ ");
  EXPECT_EQ(found(), "2 矿泉水 10 25 |1 康师傅红烧牛肉面 2 5 |  12 30 |");
  Hands::typeNow(" ");
  EXPECT_EQ(found(), "1 康师傅红烧牛肉面 2 5 |2 矿泉水 10 25 |  12 30 |");
  type("Command2", "\n");
  type("Command3", "\n");
  EXPECT_THAT(ports.pageWidthsMm, ElementsAre(58, 58));
  type("zjmtm", "⎋");
  EXPECT_FALSE(form->isVisible());
}

TEST_F(frmSearchTest, WhatCannotBeSearchedOrWrittenIsSaid) {
  sell(1, "2026-11-22 09:00:00", "A1", 2);
  open();
  type("xssl", "viele\n");
  EXPECT_EQ(found(), "1 康师傅红烧牛肉面 2 5 |  2 5 |");
  typeAndRead("numberSerch", "eins\n", "单号应为数字！");
  EXPECT_EQ(found(), "1 康师傅红烧牛肉面 2 5 |  2 5 |") << "the list stays";
  form->findChild<QLineEdit*>("numberSerch")->clear();
  type("DtBegin", "↑");
  typeAndRead("cmdSearch", "\n", "起止时间不对！");
  EXPECT_EQ(found() + focus(), "  0 0 |Dtfinish") << "an inverted period finds nothing";
}

TEST_F(frmSearchTest, TheLastBillIsPrintedAgainByOneKeyWithItsAmountsInSight) {
  sell(2, "2026-11-20 00:00:00", "A1", 2);
  sell(3, "2026-11-22 09:00:00", "A1", 2);
  settle(2, "2026-11-20 00:00:00", 2, "5", "5");
  store.run("update sellProducts set name = ?", std::string(60, 'W'));
  setParameter("PhonePay", "1");
  pos.gPosSet.PPort = "USB";
  open();
  form->resize(1000, 740);
  QTest::keyClick(form.get(), Key_L, Qt::AltModifier);
  EXPECT_EQ(found(), "2 WWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWW 2 5 |  2 5 |");
  EXPECT_EQ(state().toStdString(), "共 1 行。在列表中按空格键排序。其中扫码 [5.00] 元。");
  EXPECT_EQ(ports.pages.size(), 1U);
  EXPECT_EQ(form->findChild<QLineEdit*>("numberSerch")->text(), "2");
  const auto* list = form->findChild<QTableView*>("ListView1");
  EXPECT_LE(list->columnViewportPosition(kColumnUnitCost), list->viewport()->width());
}

TEST_F(frmSearchTest, QueryAndReprintNeedTheirRightsEachOnce) {
  sell(2, "2026-11-22 09:00:00", "A1", 2);
  settle(2, "2026-11-22 09:00:00", 2, "5");
  pos.gPosSet.PPort = "USB";
  askForApprovals(pos, {"reprint"}, {"query", "reprint"});
  open();
  QTest::keyClick(form.get(), Key_L, Qt::AltModifier);
  EXPECT_EQ(found(), "2 康师傅红烧牛肉面 2 5 |  2 5 |");
  EXPECT_EQ(ports.pages.size(), 1U) << "that bill is looked for to be printed, not to be queried";
  pos.gOperator->setRights(ClsRights({"sell"}));
  hands.type("dlgApproval", kGivesUp);
  type("zjmtm", "none\n");
  EXPECT_EQ(found(), "2 康师傅红烧牛肉面 2 5 |  2 5 |");
  hands.type("dlgApproval", kApproves);
  Hands::typeNow("\n");
  EXPECT_EQ(found(), "  0 0 |");
  type("zjmtm", "K\n");
  EXPECT_EQ(found(), "2 康师傅红烧牛肉面 2 5 |  2 5 |") << "not asked again in this window";
  for (const char* answer : {kGivesUp, kSwipes}) {
    hands.type("dlgApproval", answer);
    type("Command3", "\n");
  }
  EXPECT_EQ(ports.pages.size(), 2U);
  EXPECT_TRUE(hands.idle());
}

TEST_F(frmSearchTest, DatesAndTimesAreTakenAsTypedAndImpossibleOnesSaid) {
  sell(1, "2026-11-21 07:00:00", "A1", 2);
  sell(2, "2026-11-22 08:30:01", "C3", 2);
  open();
  type("DTPBeginTime", "08:30:01\n");
  EXPECT_EQ(found(), "  0 0 |");
  Hands::typeNow("083000\n");
  EXPECT_EQ(found(), "2 矿泉水 2 5 |  2 5 |") << "a second typing is not taken";
  type("DtBegin", "2026-11-21\t");
  EXPECT_EQ(focus(), "DTPBeginTime");
  Hands::typeNow("6.59\n");
  EXPECT_EQ(found(), "1 康师傅红烧牛肉面 2 5 |2 矿泉水 2 5 |  4 10 |");
  for (const char* leaving : {"\t", "\n"}) {
    typeAndRead("DTPBeginTime", QString("24:00") + leaving,
                "没有“24:00”这个时间！请按 08:30:00 或 083000 的样子输入。");
    EXPECT_EQ(focus(), "DTPBeginTime");
  }
  EXPECT_EQ(found(), "1 康师傅红烧牛肉面 2 5 |2 矿泉水 2 5 |  4 10 |") << "searched all the same";
}

TEST_F(frmSearchTest, ExportsGoToANameInTheOwnersFolderAndNowhereElse) {
  open();
  type("zjmtm", "\n");
  EXPECT_EQ(found(), "  0 0 |");
  const std::pair<const char*, const char*> refused[] = {
      {"../x", "文件名不能以点开头！"},
      {"/tmp/x", "文件名中不能有 / \\ : * ? \" < > | 这些字符！"},
      {"..", "文件名不能以点开头！"},
      {"data\\POS.mdb", "文件名中不能有 / \\ : * ? \" < > | 这些字符！"},
      {" ", "请输入文件名！"}};
  for (const auto& [name, message] : refused) {
    hands.type("dlgExport", QString(name) + "\n").says("messageBox", message);
  }
  hands.type("dlgExport", "x\n");
  type("Command1", "\n");
  const auto file = pos.folder / "Exports" / "x.xlsx";
  EXPECT_TRUE(exists(file));
  EXPECT_TRUE(state().contains("x.xlsx"));
  std::ofstream(file) << "old";
  hands.type("dlgExport", "x\n").says("messageBox", "文件已经存在，要覆盖吗？\nx.xlsx");
  hands.type("dlgExport", "x.csv\n");
  type("Command1", "\n");
  EXPECT_EQ(file_size(file), 3u) << "replaced without a question";
  EXPECT_TRUE(exists(pos.folder / "Exports" / "x.csv"));
  pos.configIni.write("Till", "ExportFolder", "/proc/none");
  hands.type("dlgExport", "x\n");
  typeAndRead("Command1", "\n", "不能新建导出文件夹 /proc/none，请检查设置和权限。");
}

TEST_F(frmSearchTest, AStoppedQueryLeavesTheListAsItWas) {
  const auto rows = [this] {
    return form->findChild<QTableView*>("ListView1")->model()->rowCount();
  };
  sell(1, "2026-11-22 09:00:00", "C3", 2);
  open();
  type("zjmtm", "KQS\n");
  const std::string before = found();
  EXPECT_EQ(before, "1 矿泉水 2 5 |  2 5 |");
  sellMany(20000);
  type("zjmtm", "   \n⎋");  // while it sorts
  EXPECT_EQ(rows(), 2);
  type("zjmtm", "\n");
  ASSERT_TRUE(QTest::qWaitFor([&] { return rows() > 2; }));
  if (!state().startsWith("共")) {  // while it reads
    Hands::pressNow(Key_Escape);
    EXPECT_EQ(state(), "查询已停止");
    EXPECT_EQ(rowsOf(*form, "ListView1", {1, 3, 5, 8}), before);
  }
  type("zjmtm", "\n");
  EXPECT_TRUE(QTest::qWaitFor([&] { return rows() == 20002 && state().startsWith("共"); }));
}

}  // namespace
