#include "ReportsFixture.h"
#include "reports/QueryPrints.h"
#include "reports/ResultList.h"
#include "reports/ShiftSheet.h"

using testing::ElementsAre;

class PrintsTest : public ReportsFixture {
 protected:
  ResultList sold() {
    ResultList list;
    SoldLineCollector lines;
    Rows rows = store.Read(
        "select sellProducts.*, spda.f_sptm from sellProducts inner join spda on bm=f_spbm");
    while (rows.next()) lines.take(rows);
    list.append(lines.page());
    list.complete();
    return list;
  }
};

TEST_F(PrintsTest, TheHandOverSheetHasTheShiftsFiguresAndTwoLinesToSignOn) {
  const ShiftSheet sheet{3, 7.25, *Currency::parse("56.5"), {}};
  EXPECT_THAT(sheet.document().lines,
              ElementsAre("    销售交班表", "今日累计发生 [3] 笔交易", "共交易 [7.25] 件商品",
                          "交易额 [56.50] 元", "", "", "", "", "_ _ _ _ _ _ _ _ _ _ _ _ ", "", "",
                          "", "", "_ _ _ _ _ _ _ _ _ _ _ _ _"));
}

TEST_F(PrintsTest, TheReportHasEveryLineAndTheTotals) {
  sell(12, "2026-11-22 09:05:03", "A1", 2.5);
  sell(13, "2026-11-22 09:05:04", "C3", 1);
  EXPECT_THAT(reportSheet(sold(), {{2026, 11, 22}}, {{2026, 11, 22}, 23, 59, 59}, now).lines,
              ElementsAre("      库存报表", "打印时间2026-11-22 12:00:00", "打印报表时间段",
                          "从2026-11-22 ", "至2026-11-22 23:59:59 ", "单号   编码   品名 数量",
                          "12  A1 康师傅红烧牛肉面  2.5   ", "", "13  C3 矿泉水  1   ", "",
                          "数量合计3 金额合计8.75 "));
}

// Head, column headings, first and last goods, and what follows them, with their places.
TEST_F(PrintsTest, TheReprintPlacesTheLinesOfAReceipt) {
  setParameter("ReceiptText6", "六");
  for (int i = 0; i < 120; ++i) sell(12, "2026-11-22 09:05:03", "A1", 2);
  const PageDocument page = reprintPage(sold(), " 12 ", pos.gSysParam, now);
  std::vector<std::string> placed;
  for (std::size_t i = 0; i < page.texts.size(); ++i) {
    const PlacedText& each = page.texts[i];
    if (i >= 13 && i < 9 + 4 * 119) continue;
    placed.push_back(std::to_string(each.x) + "," + std::to_string(each.y) + each.text);
  }
  EXPECT_THAT(placed,
              ElementsAre("0,0       好邻居便利店", "0,192**********补打小票********",
                          "0,384打印时间2026-11-22 12:00:00", "0,576单号：12",
                          "0,768交易时间2026-11-22 09:05:03", "50,1000品名", "1300,1000数量",
                          "1700,1000单价", "2200,1000金额", "50,1600康师傅红烧牛肉 ",
                          "1300,1600 2 ", "1700,16002.5", "2200,16005 ", "50,37300康师傅红烧牛肉 ",
                          "1300,37300 2 ", "1700,373002.5", "2200,373005 ",
                          "0,37684数量合计240 金额合计600 ", "0,37876谢谢惠顾", "0,38068欢迎光临",
                          "0,38260电话 010-1234", "0,38452", "0,38644", "0,38836六"));
}
