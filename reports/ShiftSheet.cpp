#include "reports/ShiftSheet.h"

#include "base/NumberText.h"

std::vector<std::string> ShiftSheet::lines() const {
  std::vector<std::string> sheet = {
      "    销售交班表", "今日累计发生 [" + std::to_string(bills) + "] 笔交易",
      "共交易 [" + generalNumber(quantity) + "] 件商品", "交易额 [" + sumText(money) + "] 元"};
  sheet.insert(sheet.end(), 4, "");
  sheet.emplace_back("_ _ _ _ _ _ _ _ _ _ _ _ ");
  sheet.insert(sheet.end(), 4, "");
  sheet.emplace_back("_ _ _ _ _ _ _ _ _ _ _ _ _");
  return sheet;
}
