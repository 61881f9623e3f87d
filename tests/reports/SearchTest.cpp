#include <gmock/gmock.h>

#include "TestShop.h"
#include "reports/ResultList.h"
#include "reports/SearchCriteria.h"

namespace {

using testing::ElementsAre;

/// "bill code" of each line found.
std::vector<std::string> found(Connection& store, const std::string& statement) {
  std::vector<std::string> lines;
  Rows rows = store.Read(statement);
  while (rows.next()) lines.push_back(rows.text("sellId") + " " + rows.text("bm"));
  return lines;
}

TEST(SearchTest, EachCriterionFindsItsLines) {
  TestShop shop;
  shop.sell(1, "2026-11-22 00:00:00", "A1", 1, "2", "2");  // at the start, so not in the period
  shop.sell(3, "2026-11-22 09:00:02", "A1", 1, "2", "2");
  shop.sell(2, "2026-11-22 09:00:01", "B2", 1, "2", "2");
  shop.sell(3, "2026-11-22 09:00:01", "C3", 1, "2", "2");
  shop.sell(4, "2026-11-22 23:59:59", "C3", 1, "2", "2");
  shop.sell(5, "2026-11-23 00:00:00", "A1", 1, "2", "2");
  constexpr bool kItem = false, kCategory = true;
  using Lines = std::vector<std::string>;
  const struct {
    bool byCategory;
    const char *code, *billNo, *category;
    Lines lines;
  } cases[] = {
      {kItem, "", "", "请选择类别", {"2 B2", "3 C3", "3 A1", "4 C3"}},
      {kItem, "690003", "2", "", {"3 C3", "4 C3"}},  // the bill number does not count
      {kItem, "69000'2", "", "", {"2 B2"}},
      {kItem, "' or ''='", "", "", {}},
      {kItem, " ks ", "", "", {"2 B2", "3 A1"}},
      {kItem, "K_-", "", "", {"2 B2"}},
      {kItem, "KS    ", "", "", {}},  // six characters are a barcode
      {kItem, "", " 3 ", "", {"3 C3", "3 A1"}},
      {kItem, "", "9999999999", "", {}},
      {kCategory, "", "x", "饮料", {"3 C3", "4 C3"}},  // the category when it was sold
      {kCategory, "", "", "请选择类别", {}},
      {kCategory, "KQS", "", "食品", {"3 C3", "4 C3"}},  // the category of the goods
      {kCategory, "690003", "", "食品", {"3 C3", "4 C3"}},
      {kCategory, "690003", "", "饮料", {}},
  };
  for (const auto& c : cases) {
    SearchCriteria criteria;
    criteria.start = {{2026, 11, 22}};
    criteria.end = {{2026, 11, 22}, 23, 59, 59};
    criteria.byCategory = c.byCategory;
    criteria.code = c.code;
    criteria.billNo = c.billNo;
    criteria.category = c.category;
    const auto statement = searchStatement(criteria);
    ASSERT_TRUE(statement);
    EXPECT_EQ(found(shop.store(), *statement), c.lines) << *statement;
  }
}

TEST(SearchTest, ASlipFindsItsBillAndWhatThePhonePaid) {
  TestShop shop;
  const struct {
    int bill;
    const char *phone, *slip;
  } bills[] = {{3, "0.1", "28A1"}, {4, "0.2", "3"}, {5, "7", "9999999999"}};
  for (const auto& [bill, phone, slip] : bills) {
    shop.sell(bill, "2026-11-22 09:00:00", "A1", 1, "2", "2");
    shop.settle(bill, "2026-11-22 09:00:00", 1, "2");
    shop.store().run("update sell set phone_pay = ?, phone_slip = ? where id = ?",
                     *Currency::parse(phone), std::string(slip), bill);
  }
  const struct {
    const char* typed;
    std::vector<std::string> lines;
    const char* sum;
  } cases[] = {{" ２８a1 ", {"3 A1"}, "0.1"},
               {"3", {"3 A1", "4 A1"}, "0.3"},  // a bill's number, and the code of another's slip
               {"9999999999", {"5 A1"}, "7"},
               {"' or ''='", {}, ""}};
  for (const auto& c : cases) {
    SearchCriteria criteria;
    criteria.start = {{2026, 11, 22}};
    criteria.end = {{2026, 11, 23}};
    criteria.billNo = c.typed;
    criteria.takesSlips = true;
    EXPECT_EQ(found(shop.store(), searchStatement(criteria).value()), c.lines);
    const auto sums = tenderStatement(criteria, {&tenderKind(Tender::kPhone)});
    EXPECT_EQ(shop.store().Open(sums).row(0).text("phone_pay"), c.sum);
  }
}

TEST(SearchTest, ABillNumberThatIsNoneAsksNothing) {
  SearchCriteria criteria;
  for (const char* typed : {"x", " ", "1 or 1=1", "1;2", "--"}) {
    criteria.billNo = typed;
    EXPECT_FALSE(searchStatement(criteria)) << typed;
  }
}

}  // namespace
