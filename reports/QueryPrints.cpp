#include "reports/QueryPrints.h"

#include <utility>

#include "base/Text.h"
#include "reports/ResultList.h"
#include "saleslib/ClsSysParam.h"

// Papers are Chinese whatever the screens speak.

namespace {

// In twips.
constexpr int kHeadingsAt = 1000;
constexpr int kLinesFrom = 1300;  ///< less one row
constexpr int kRowHeight = 300;
constexpr int kNameAt = 50;
constexpr int kQuantityAt = 1300;
constexpr int kPriceAt = 1700;
constexpr int kMoneyAt = 2200;

/// Five lines of this size end above the column headings, and seven Chinese characters before the
/// quantity.
constexpr double kReprintPoints = 8;
constexpr std::size_t kNameCharacters = 7;

std::string totalsLine(const ResultList& list) {
  const std::size_t totals = list.lineCount();
  return "数量合计" + list.text(totals, kColumnQuantity) + " 金额合计" +
         list.text(totals, kColumnMoney) + " ";
}

std::vector<std::string> tenderLines(const ResultList& list) {
  std::vector<std::string> lines;
  for (const TenderSum& tender : list.tenders()) lines.push_back(tender.printed());
  return lines;
}

void addGoodsLine(PageDocument& page, int y, const ResultList& list, std::size_t row) {
  const std::string name = firstCharacters(list.text(row, kColumnName), kNameCharacters);
  page.texts.push_back({kNameAt, y, name + " "});
  page.texts.push_back({kQuantityAt, y, " " + list.text(row, kColumnQuantity) + " "});
  page.texts.push_back({kPriceAt, y, list.text(row, kColumnPrice)});
  page.texts.push_back({kMoneyAt, y, list.text(row, kColumnMoney) + " "});
}

/// Column headings and goods lines; gives the place below them, after an empty line.
int addGoods(PageDocument& page, const ResultList& list) {
  page.texts.push_back({kNameAt, kHeadingsAt, "品名"});
  page.texts.push_back({kQuantityAt, kHeadingsAt, "数量"});
  page.texts.push_back({kPriceAt, kHeadingsAt, "单价"});
  page.texts.push_back({kMoneyAt, kHeadingsAt, "金额"});
  int y = kHeadingsAt;
  for (std::size_t row = 0; row < list.lineCount(); ++row) {
    y = kLinesFrom + kRowHeight * static_cast<int>(row + 1);
    addGoodsLine(page, y, list, row);
  }
  return y + page.lineHeight() * (list.lineCount() == 0 ? 1 : 2);
}

}  // namespace

LineDocument reportSheet(const ResultList& list, const DateTime& start, const DateTime& end,
                         const DateTime& now) {
  std::vector<std::string> lines = {"      库存报表",
                                    "打印时间" + generalText(now),
                                    "打印报表时间段",
                                    "从" + generalText(start) + " ",
                                    "至" + generalText(end) + " ",
                                    "单号   编码   品名 数量"};
  for (std::size_t row = 0; row < list.lineCount(); ++row) {
    lines.push_back(list.text(row, kColumnBill) + "  " + list.text(row, kColumnCode) + " " +
                    list.text(row, kColumnName) + "  " + list.text(row, kColumnQuantity) + "   ");
    lines.emplace_back();
  }
  lines.push_back(totalsLine(list));
  for (const std::string& line : tenderLines(list)) lines.push_back(line);
  return {"库存报表", std::move(lines)};
}

PageDocument reprintPage(const ResultList& list, const std::string& billNo, const ClsSysParam& shop,
                         const DateTime& now) {
  PageDocument page;
  page.name = "补打小票";
  page.fontPoints = kReprintPoints;
  page.addLines(
      0, {"       " + shop.ShopName(), "**********补打小票********", "打印时间" + generalText(now),
          "单号：" + trimmed(billNo), "交易时间" + list.text(0, kColumnTime)});
  int y = page.addLines(addGoods(page, list), {totalsLine(list)});
  y = page.addLines(y, tenderLines(list));
  page.addLines(y, {shop.ReceiptText2(), shop.ReceiptText1(), shop.ReceiptText3(),
                    shop.ReceiptText4(), shop.ReceiptText5(), shop.ReceiptText6()});
  return page;
}
