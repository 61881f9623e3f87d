#include "reports/SearchCriteria.h"

#include "base/NumberText.h"
#include "base/Text.h"
#include "store/Literal.h"

namespace {

const char* const kSelect =
    "select sellproducts.insert_Date, sellproducts.sellId,sellproducts.bm,sellproducts.name,unit,"
    "sellproducts.amount,sellproducts.price,sellproducts.discount,sellproducts.money,"
    "sellproducts.in_price,sellproducts.splbmc, spda.f_sptm from sellProducts inner join spda on "
    "sellproducts.bm=spda.f_spbm where ";
const char* const kOrder = " order by sellId,insert_Date ";

/// Barcodes have at least this many characters, blanks included; shorter codes are fragments.
constexpr std::size_t kShortestBarcode = 6;

bool isBarcode(const std::string& code) {
  return characters(code) >= kShortestBarcode;
}

std::string period(const SearchCriteria& criteria) {
  return "insert_date>" + literal(criteria.start) + " and insert_date<=" + literal(criteria.end);
}

std::string itemCondition(const std::string& code) {
  if (isBarcode(code)) return "spda.f_sptm=" + quotedText(code);
  return "spda.f_Ggxh  like " + likeFragment(trimmed(code));
}

std::string itemQuery(const SearchCriteria& criteria) {
  const char* joint = isBarcode(criteria.code) ? " and " : "  and  ";
  return itemCondition(criteria.code) + joint + period(criteria);
}

std::string itemInCategoryQuery(const SearchCriteria& criteria) {
  const bool barcode = isBarcode(criteria.code);
  return itemCondition(criteria.code) + (barcode ? "  and " : " and ") +
         "spda.f_splbmc=" + quotedText(criteria.category) + (barcode ? " and " : " and  ") +
         period(criteria);
}

std::string categoryQuery(const SearchCriteria& criteria) {
  return "sellproducts.splbmc=" + quotedText(criteria.category) + " and " + period(criteria);
}

std::optional<std::string> billQuery(const SearchCriteria& criteria) {
  const std::optional<double> number = parseNumber(criteria.billNo);
  if (!number) return std::nullopt;
  return period(criteria) + "  and sellid=" + literal(*number);
}

std::optional<std::string> condition(const SearchCriteria& criteria) {
  const bool anyCode = criteria.code.empty();
  if (criteria.byCategory) return anyCode ? categoryQuery(criteria) : itemInCategoryQuery(criteria);
  if (!anyCode) return itemQuery(criteria);
  return criteria.billNo.empty() ? period(criteria) : billQuery(criteria);
}

}  // namespace

std::optional<std::string> searchStatement(const SearchCriteria& criteria) {
  const std::optional<std::string> wanted = condition(criteria);
  if (!wanted) return std::nullopt;
  return kSelect + *wanted + kOrder;
}

std::vector<std::string> criteriaText(const SearchCriteria& criteria) {
  std::string rest = criteria.byCategory ? "按分类查看：" + criteria.category : "按单品查看";
  if (!criteria.code.empty()) {
    rest += "，助记码/条码：" + criteria.code;
  } else if (!criteria.byCategory && !criteria.billNo.empty()) {
    rest += "，单号：" + trimmed(criteria.billNo);
  }
  return {"期间：" + generalText(criteria.start) + " 至 " + generalText(criteria.end),
          "条件：" + rest};
}
