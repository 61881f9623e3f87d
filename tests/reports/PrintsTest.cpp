#include <gmock/gmock.h>

#include "TestShop.h"
#include "reports/QueryPrints.h"
#include "reports/ResultList.h"
#include "reports/ShiftSheet.h"

namespace {

using testing::ElementsAre;

const DateTime kNow{{2026, 11, 22}, 12, 0, 0};

ResultList soldIn(TestShop& shop) {
  ResultList list;
  SoldLineCollector lines;
  Rows rows = shop.store().Read(
      "select sellProducts.*, spda.f_sptm from sellProducts inner join spda on bm=f_spbm");
  while (rows.next()) lines.take(rows);
  list.append(lines.page());
  list.complete();
  return list;
}

std::vector<std::string> texts(const PageDocument& page) {
  std::vector<std::string> texts;
  for (const PlacedText& placed : page.texts) texts.push_back(placed.text);
  return texts;
}

TEST(ShiftSheetTest, HasTheShiftsFiguresAndTwoLinesToSignOn) {
  const ShiftSheet sheet{3, 7.25, *Currency::parse("56.5"), {}};
  EXPECT_THAT(sheet.document().lines,
              ElementsAre("    销售交班表", "今日累计发生 [3] 笔交易", "共交易 [7.25] 件商品",
                          "交易额 [56.50] 元", "", "", "", "", "_ _ _ _ _ _ _ _ _ _ _ _ ", "", "",
                          "", "", "_ _ _ _ _ _ _ _ _ _ _ _ _"));
}

TEST(ReportTest, PrintsEveryLineAndTheTotals) {
  TestShop shop;
  shop.sell(12, "2026-11-22 09:05:03", "A1", 2.5, "2", "5");
  shop.sell(13, "2026-11-22 09:05:04", "C3", 1, "1.5", "1.5");
  const LineDocument sheet =
      reportSheet(soldIn(shop), {{2026, 11, 22}}, {{2026, 11, 22}, 23, 59, 59}, kNow);
  EXPECT_THAT(sheet.lines, ElementsAre("      库存报表", "打印时间2026-11-22 12:00:00",
                                       "打印报表时间段", "从2026-11-22 ", "至2026-11-22 23:59:59 ",
                                       "单号   编码   品名 数量", "12  A1 康师傅红烧牛肉面  2.5   ",
                                       "", "13  C3 矿泉水  1   ", "", "数量合计3 金额合计6.5 "));
}

TEST(ReprintTest, PlacesTheLinesOfAReceipt) {
  TestShop shop;
  ASSERT_EQ(shop.pos().gSysParam.set("ShopName", "小店"), "");
  ASSERT_EQ(shop.pos().gSysParam.set("ReceiptText6", "六"), "");
  for (int i = 0; i < 120; ++i) shop.sell(12, "2026-11-22 09:05:03", "A1", 2, "2.5", "5");
  const PageDocument page = reprintPage(soldIn(shop), " 12 ", shop.pos().gSysParam, kNow);
  std::vector<std::string> head = texts(page);
  head.resize(5);
  EXPECT_THAT(
      head, ElementsAre("       小店", "**********补打小票********", "打印时间2026-11-22 12:00:00",
                        "单号：12", "交易时间2026-11-22 09:05:03"));
  EXPECT_LE(page.texts[4].y + page.lineHeight(), 1000) << "the head runs into the column headings";
  const auto placed = [&](std::size_t i) {
    return std::tuple(page.texts[i].x, page.texts[i].y, page.texts[i].text);
  };
  EXPECT_EQ(placed(5), std::tuple(50, 1000, "品名"));
  EXPECT_EQ(placed(9), std::tuple(50, 1600, "康师傅红烧牛肉 "));
  EXPECT_EQ(placed(10), std::tuple(1300, 1600, " 2 "));
  EXPECT_EQ(placed(12), std::tuple(2200, 1600, "5 "));
  const int last = 1300 + 300 * 120;
  EXPECT_EQ(placed(9 + 4 * 119), std::tuple(50, last, "康师傅红烧牛肉 "));
  const std::size_t totals = 9 + 4 * 120;
  EXPECT_EQ(placed(totals),
            std::tuple(0, last + 2 * page.lineHeight(), "数量合计240 金额合计600 "));
  EXPECT_EQ(placed(totals + 6), std::tuple(0, last + 8 * page.lineHeight(), "六"));
}

}  // namespace
