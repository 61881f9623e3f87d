#include "reports/SearchCriteria.h"

#include "base/NumberText.h"
#include "base/Text.h"
#include "store/Literal.h"

namespace {

const char* const kColumns =
    "select sellproducts.insert_Date, sellproducts.sellId,sellproducts.bm,sellproducts.name,unit,"
    "sellproducts.amount,sellproducts.price,sellproducts.discount,sellproducts.money,"
    "sellproducts.in_price,sellproducts.splbmc, spda.f_sptm";
const char* const kFrom =
    " from sellProducts inner join spda on sellproducts.bm=spda.f_spbm where ";
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

// Codes have more digits than bill numbers, but for those that a shop writes down shortened.
std::optional<std::string> slipQuery(const SearchCriteria& criteria) {
  const std::string bySlip =
      "sellid in (select id from sell where phone_slip=" + quotedText(slipCode(criteria.billNo)) +
      ")";
  const std::optional<std::int32_t> number = parseWhole32(criteria.billNo);
  const std::string byNumber = number ? "sellid=" + literal(std::int64_t{*number}) + " or " : "";
  return period(criteria) + "  and (" + byNumber + bySlip + ")";
}

std::optional<std::string> billQuery(const SearchCriteria& criteria) {
  if (criteria.takesSlips) return slipQuery(criteria);
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
  std::string statement = kColumns;
  statement.append(kFrom).append(*wanted).append(kOrder);
  return statement;
}

std::string tenderStatement(const SearchCriteria& criteria,
                            const std::vector<const TenderKind*>& kinds) {
  std::string sums;
  for (const TenderKind* kind : kinds) {
    sums += (sums.empty() ? "" : ", ") + ("round(sum(" + std::string(kind->column)) + "), 4) as " +
            kind->column;
  }
  return "select " + sums + " from sell where state=1 and id in (select sellproducts.sellId" +
         kFrom + condition(criteria).value() + ")";
}

// Files are Chinese whatever the screens speak.
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
