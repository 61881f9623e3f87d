#include <gmock/gmock.h>

#include "base/NumberText.h"
#include "saleslib/ClsMember.h"
#include "saleslib/Pricing.h"
#include "store/Recordset.h"

namespace {

const Date kToday{2026, 11, 22};
const Value kNull;

struct Case {
  const char* what;
  std::vector<Value> prices;  // xsdj, pfj, zk, cxj, kssj, jssj
  bool member;
  const char* expected;  // price, discount, name; "?" for a price that is asked for
};

std::string shown(const Price& price) {
  const std::string figure = price.missing ? "?" : twoDecimals(price.price);
  return figure + " " + generalNumber(price.discount) + " " + price.name;
}

template <class PriceOf>
void expectPrices(const std::vector<std::string>& columns, const std::vector<Case>& cases,
                  PriceOf priceOf) {
  ClsMember member;
  member.setDiscount(0.95);
  for (const Case& each : cases) {
    std::vector<Value> values{"水"};
    values.insert(values.end(), each.prices.begin(), each.prices.end());
    const Recordset::Record row(columns, values);
    EXPECT_EQ(shown(priceOf(row, each.member ? &member : nullptr)), each.expected) << each.what;
  }
}

}  // namespace

TEST(Pricing, barcodeRowsTakeMemberPriceThenPromotionThenRetail) {
  const Value from("2026-11-20 00:00:00"), to("2026-11-22 00:00:00");
  const Value nine("2026-11-22 09:00:00"), yesterday("2026-11-21 23:59:59");
  const std::vector<Case> cases = {
      {"retail, general factor", {2.5, kNull, 1.0, kNull, kNull, kNull}, false, "2.50 0.98 水"},
      {"own discount wins", {2.5, kNull, 0.9, kNull, kNull, kNull}, false, "2.50 0.9 水"},
      {"empty discount is none", {2.5, kNull, kNull, kNull, kNull, kNull}, false, "2.50 0.98 水"},
      {"member price", {2.5, 2.2, 0.9, 1.0, from, to}, true, "2.20 0.95 水"},
      {"no card, no member price", {2.5, 2.2, 1.0, kNull, kNull, kNull}, false, "2.50 0.98 水"},
      {"card, member price 0: promotion", {2.5, 0.0, 0.9, 1.99, from, to}, true, "1.99 1 (特)水"},
      {"card, empty member price", {2.5, kNull, 1.0, kNull, from, to}, false, "? 1 (特)水"},
      {"starts today at nine", {2.5, kNull, 1.0, 1.99, nine, to}, false, "2.50 0.98 水"},
      {"ended yesterday", {2.5, kNull, 1.0, 1.99, from, yesterday}, false, "2.50 0.98 水"},
      {"open end is none", {2.5, kNull, 1.0, 1.99, from, kNull}, false, "2.50 0.98 水"},
      {"empty price", {kNull, kNull, 1.0, kNull, kNull, kNull}, true, "? 0.98 水"},
      {"negative price", {-1.0, kNull, 0.9, kNull, kNull, kNull}, false, "? 0.9 水"},
  };
  expectPrices({"spmc", "xsdj", "pfj", "zk", "cxj", "kssj", "jssj"}, cases,
               [](const Row& row, const ClsMember* member) {
                 return priceOfBarcodeRow(row, member, kToday, 0.98);
               });
}

TEST(Pricing, masterRowsAskBeforeTheyLookAtTheMemberPrice) {
  const std::vector<Case> cases = {
      {"retail", {1.5, kNull, 1.0}, false, "1.50 0.98 水"},
      {"member price", {1.5, 1.2, 0.8}, true, "1.20 0.95 水"},
      {"member price 0", {1.5, 0.0, 0.8}, true, "1.50 0.8 水"},
      {"no retail price", {kNull, 1.2, 0.8}, true, "? 1 水"},
      {"retail price 0", {0.0, 1.2, 0.8}, true, "? 1 水"},
  };
  expectPrices(
      {"f_spmc", "f_xsdj", "f_pfj", "f_zk"}, cases,
      [](const Row& row, const ClsMember* member) { return priceOfMasterRow(row, member, 0.98); });
}
