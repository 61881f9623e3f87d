#include <gmock/gmock.h>

#include "base/NumberText.h"
#include "saleslib/ClsMember.h"
#include "saleslib/Pricing.h"
#include "store/Recordset.h"

namespace {

const Value kNull, kFrom("2026-11-20 00:00:00"), kTo("2026-11-22 00:00:00");
const Value kNine("2026-11-22 09:00:00"), kYesterday("2026-11-21 23:59:59");

struct Case {
  const char* what;
  std::vector<Value> prices;
  bool member;
  const char* expected;  // price, discount, name; "?" for a price that is asked for
};

void expectPrices(const Recordset::Columns& columns, const std::vector<Case>& cases,
                  const std::function<Price(const Row&, const ClsMember*)>& priceOf) {
  ClsMember member;
  member.setDiscount(0.95);
  for (const Case& each : cases) {
    std::vector<Value> values = each.prices;
    values.emplace_back("水");
    const Price price =
        priceOf(Recordset::Record(columns, values), each.member ? &member : nullptr);
    const std::string figure = price.missing ? "?" : twoDecimals(price.price);
    EXPECT_EQ(figure + " " + generalNumber(price.discount) + " " + price.name, each.expected)
        << each.what;
  }
}

TEST(PricingTest, BarcodeRowsTakeMemberPriceThenPromotionThenRetail) {
  expectPrices(
      {"xsdj", "pfj", "zk", "cxj", "kssj", "jssj", "spmc"},
      {{"retail, general factor", {2.5, kNull, 1.0, kNull, kNull, kNull}, false, "2.50 0.98 水"},
       {"own discount wins", {2.5, kNull, 0.9, kNull, kNull, kNull}, false, "2.50 0.9 水"},
       {"empty discount is none", {2.5, kNull, kNull, kNull, kNull, kNull}, false, "2.50 0.98 水"},
       {"member price", {2.5, 2.2, 0.9, 1.0, kFrom, kTo}, true, "2.20 0.95 水"},
       {"no card, no member price", {2.5, 2.2, 1.0, kNull, kNull, kNull}, false, "2.50 0.98 水"},
       {"card, no member price", {2.5, 0.0, 0.9, 1.99, kFrom, kTo}, true, "1.99 1 (特)水"},
       {"card, empty member price", {2.5, kNull, 1.0, kNull, kFrom, kTo}, false, "? 1 (特)水"},
       {"starts today at nine", {2.5, kNull, 1.0, 1.99, kNine, kTo}, false, "2.50 0.98 水"},
       {"ended yesterday", {2.5, kNull, 1.0, 1.99, kFrom, kYesterday}, false, "2.50 0.98 水"},
       {"open end is none", {2.5, kNull, 1.0, 1.99, kFrom, kNull}, false, "2.50 0.98 水"},
       {"empty price", {kNull, kNull, 1.0, kNull, kNull, kNull}, true, "? 0.98 水"},
       {"negative price", {-1.0, kNull, 0.9, kNull, kNull, kNull}, false, "? 0.9 水"}},
      [](auto& row, auto* member) {
        return priceOfBarcodeRow(row, member, {2026, 11, 22}, 0.98);
      });
}

TEST(PricingTest, MasterRowsAskBeforeTheyLookAtTheMemberPrice) {
  expectPrices({"f_xsdj", "f_pfj", "f_zk", "f_spmc"},
               {{"retail", {1.5, kNull, 1.0}, false, "1.50 0.98 水"},
                {"member price", {1.5, 1.2, 0.8}, true, "1.20 0.95 水"},
                {"member price 0", {1.5, 0.0, 0.8}, true, "1.50 0.8 水"},
                {"no retail price", {kNull, 1.2, 0.8}, true, "? 1 水"},
                {"retail price 0", {0.0, 1.2, 0.8}, true, "? 1 水"}},
               [](auto& row, auto* member) { return priceOfMasterRow(row, member, 0.98); });
}

}  // namespace
