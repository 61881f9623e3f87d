#include "reports/ShiftSheet.h"

#include <utility>

#include "base/NumberText.h"

// Papers are Chinese whatever the screens speak.
LineDocument ShiftSheet::document() const {
  std::vector<std::string> sheet = {
      "    销售交班表", "今日累计发生 [" + std::to_string(bills) + "] 笔交易",
      "共交易 [" + generalNumber(quantity) + "] 件商品", "交易额 [" + sumText(money) + "] 元"};
  for (const TenderSum& tender : tenders) sheet.push_back(tender.printed());
  sheet.insert(sheet.end(), 4, "");
  sheet.emplace_back("_ _ _ _ _ _ _ _ _ _ _ _ ");
  sheet.insert(sheet.end(), 4, "");
  sheet.emplace_back("_ _ _ _ _ _ _ _ _ _ _ _ _");
  return {"交班表", std::move(sheet)};
}
