#include <gmock/gmock.h>

#include <cstdlib>
#include <fstream>
#include <iterator>

#include "TemporaryFolder.h"
#include "base/Failure.h"
#include "store/Connection.h"
#include "store/DataFile.h"
#include "takings/ReportFile.h"
#include "takings/TakingsReport.h"

namespace {

using testing::HasSubstr;
using testing::Not;

constexpr ReportTerms kOctoberOn = {{2026, 10, 31}, {2026, 11, 2}};
constexpr DateTime kNow = {{2026, 11, 22}, 9, 5, 3};

/// A shop whose figures are known: bills before, at the edges of and behind the period, an open
/// one, discounts, a gift at the settlement, rounding, a line without cost price, a case of twelve,
/// an item that is gone, and returns whose lines are lowered already.
class ReportTest : public testing::Test {
 protected:
  ReportTest() {
    shop_->runScript(R"(
      insert into sys_param values ('ShopName', '好邻居<便利店>');
      insert into operators (id, name, code, password) values (1, '张三', '01', '');
      insert into spda (f_spbm, f_spmc, f_splbmc, f_zhjj) values
        ('A1', '红烧牛肉面', '食品', 2.5), ('B2', '=矿泉水', '饮料', 1), ('C3', '+糖', '食品', 3),
        ('D4', '旧挂历', '', 8), ('E5', '黄油', '食品', 0);
      insert into stock values ('A1', 9.5), ('B2', 240), ('C3', -2), ('D4', 20), ('E5', 30);
      insert into sell (id, sell_time, operator_id, state, quantity, goods_amount, amount, cash,
                        favorable, bank_card, card_pay) values
        (1, '2026-10-30 23:59:59', 1, 1, 1, 3, 3, 3, 0, 0, 0),
        (2, '2026-10-31 00:00:00', 1, 1, 2.9, 9.45, 9.5, 20, 0.5, 0, 0),
        (3, '2026-11-02 23:59:59', 7, 1, 2, 41, 41, 0, 0, 41, 0),
        (4, '2026-11-03 00:00:00', 1, 1, 1, 3, 3, 3, 0, 0, 0),
        (5, '2026-11-02 12:00:00', 1, 0, 9, 90, 90, 0, 0, 0, 0),
        (6, '2026-11-02 12:30:00', 1, 1, 0, 0, 0, 8, 0, 0, 0);
      insert into sellProducts (id, sellId, insert_Date, bm, name, amount, price, discount, money,
                                in_price, splbmc, ratio) values
        (1, 1, '2026-10-30 23:59:59', 'E5', '黄油', 1, 3, 1, 3, 2, '食品', 1),
        (2, 2, '2026-10-31 00:00:00', 'A1', '(特)牛肉面', 2, 3.5, 0.9, 6.3, 2.5, '食品', 1),
        (3, 2, '2026-10-31 00:00:01', 'a1', '牛肉面', 0.9, 3.5, 1, 3.15, 2.555, '食品', 1),
        (4, 3, '2026-11-02 23:59:59', 'B2', '水', 1, 36, 1, 36, 12, '饮料', 12),
        (5, 3, '2026-11-02 23:59:59', 'X9', '</script>糖', 1, 5, 1, 5, null, '', 1),
        (6, 4, '2026-11-03 00:00:00', 'D4', '旧挂历', 1, 3, 1, 3, 2, '', 1),
        (7, 5, '2026-11-02 12:00:00', 'D4', '旧挂历', 9, 10, 1, 90, 8, '', 1),
        (8, 6, '2026-11-02 12:30:00', 'C3', '糖', 0, 4, 1, 0, 3, '食品', 1);
      insert into un_sell (un_time, sell_id, item_id, quantity, money, cost, ratio, discount,
                           operator_id) values
        ('2026-10-30 10:00:00', 6, 8, 1, 4, 3, 1, 1, 1),
        ('2026-11-02 10:00:00', 6, 8, 2, 8, 3, 1, 1, 9),
        ('2026-11-02 11:00:00', 3, 4, 0.5, 18, 12, 12, 1, 1);
    )");
  }

  Report report(const ReportTerms& terms = kOctoberOn) {
    return takingsReport(*shop_, terms, kNow, [](double) { return true; }).value();
  }
  /// What stands under that heading in the report as text.
  std::string section(const ReportTerms& terms, const std::string& title) {
    const std::string text = textReport(report(terms));
    const std::size_t from = text.find("【" + title);
    return text.substr(from, text.find("\n\n", from) - from);
  }
  static std::string read(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }

  TemporaryFolder folder_;
  std::unique_ptr<Connection> shop_ = createDataFile({folder_.file("POS.mdb"), ""});
};

TEST_F(ReportTest, EverySectionHasItsFigures) {
  for (const auto& [format, golden] : {std::pair(ReportFormat::kText, "/report.txt"),
                                       std::pair(ReportFormat::kCsv, "/report.csv")}) {
    const std::string file = folder_.file("report");
    writeReport(file, report(), format);
    EXPECT_EQ(read(file), read(GOLDEN_TEXTS + std::string(golden)));
  }
}

TEST_F(ReportTest, GoodsAreSlowForTheDaysAskedAndLowBelowTheLimit) {
  ReportTerms terms = kOctoberOn;
  terms.slowDays = 2;
  EXPECT_THAT(section(terms, "没有动销"), HasSubstr("红烧牛肉面"));
  terms.slowDays = 4;
  EXPECT_THAT(section(terms, "没有动销"), Not(HasSubstr("黄油")));
  EXPECT_THAT(section(terms, "按商品"), Not(HasSubstr("黄油")));
  terms.stockBelow = 9.5;
  EXPECT_THAT(section(terms, "库存不足"), Not(HasSubstr("A1")));
}

TEST_F(ReportTest, LongListsKeepTheFirstOnesAndTheSumOfAll) {
  ReportTerms terms = kOctoberOn;
  terms.mostGoods = 1;
  const std::string goods = section(terms, "按商品");
  EXPECT_THAT(goods, HasSubstr("共 3 种，按销售额，列出前 1 种"));
  EXPECT_THAT(goods, testing::ContainsRegex("B2 .*=矿泉水 .*36.00.*\n合计 .*50.45"));
  EXPECT_THAT(section(terms, "没有动销"), testing::ContainsRegex("D4 .*\n合计 +160.00"));
}

TEST_F(ReportTest, ThePageHoldsTheFiguresAndNeedsNothingElse) {
  const std::string page = htmlReport(report());
  EXPECT_THAT(page, HasSubstr("<td>B2</td><td>=矿泉水</td><td class=\"n\">12</td>"));
  EXPECT_THAT(page, HasSubstr(R"("names":["=矿泉水","红烧牛肉面","\u003c/script>糖"])"));
  EXPECT_THAT(page, HasSubstr("好邻居&lt;便利店&gt;"));
  EXPECT_THAT(page, HasSubstr("default-src 'none'; script-src 'unsafe-inline'"));
  EXPECT_THAT(page, HasSubstr("Released under the MIT License"));
  for (const char* reference : {" src=", "@import", "url(", "<link"})
    EXPECT_THAT(page, Not(HasSubstr(reference)));
}

TEST_F(ReportTest, ASpreadsheetHoldsNumbers) {
  const std::string file = folder_.file("report.xlsx");
  writeReport(file, report(), ReportFormat::kXlsx);
  const std::string unzipped = folder_.file("goods.xml");
  ASSERT_EQ(std::system(("unzip -p " + file + " xl/worksheets/sheet7.xml > " + unzipped).c_str()),
            0);
  EXPECT_THAT(read(unzipped),
              testing::ContainsRegex(R"(<c r="C7"><v>12</v></c><c r="D7" s="[0-9]"><v>36</v></c>)"
                                     R"(<c r="E7" s="[0-9]"><v>0\.71357)"));
}

TEST_F(ReportTest, ABillThatCannotBeReadIsRefusedAndAStoppedReportIsNone) {
  EXPECT_FALSE(takingsReport(*shop_, kOctoberOn, kNow, [](double part) { return part < 0.5; }));
  shop_->run("update sell set amount = 'x' where id = 2");
  EXPECT_THROW((void)report(), Failure);
}

}  // namespace
