#include "ReportsFixture.h"
#include "reports/ResultList.h"
#include "reports/SearchCriteria.h"

class SearchTest : public ReportsFixture {
 protected:
  /// "bill code" of each line found.
  std::string found(const SearchCriteria& criteria) {
    std::string lines;
    Rows rows = store.Read(searchStatement(criteria).value());
    while (rows.next()) lines += rows.text("sellId") + " " + rows.text("bm") + ";";
    return lines;
  }
};

TEST_F(SearchTest, EachCriterionFindsItsLines) {
  sell(1, "2026-11-22 00:00:00", "A1", 1);  // at the start, so not in the period
  sell(3, "2026-11-22 09:00:02", "A1", 1);
  sell(2, "2026-11-22 09:00:01", "B2", 1);
  sell(3, "2026-11-22 09:00:01", "C3", 1);
  sell(4, "2026-11-22 23:59:59", "C3", 1);
  sell(5, "2026-11-23 00:00:00", "A1", 1);
  constexpr bool kItem = false, kCategory = true;
  const struct {
    bool byCategory;
    const char *code, *billNo, *category, *lines;
  } cases[] = {
      {kItem, "", "", "请选择类别", "2 B2;3 C3;3 A1;4 C3;"},
      {kItem, "690003", "2", "", "3 C3;4 C3;"},  // the bill number does not count
      {kItem, "69000'2", "", "", "2 B2;"},
      {kItem, "' or ''='", "", "", ""},
      {kItem, " ks ", "", "", "2 B2;3 A1;"},
      {kItem, "K_-", "", "", "2 B2;"},
      {kItem, "KS    ", "", "", ""},  // six characters are a barcode
      {kItem, "", " 3 ", "", "3 C3;3 A1;"},
      {kItem, "", "9999999999", "", ""},
      {kCategory, "", "x", "饮料", "3 C3;4 C3;"},  // the category when it was sold
      {kCategory, "", "", "请选择类别", ""},
      {kCategory, "KQS", "", "食品", "3 C3;4 C3;"},  // the category of the goods
      {kCategory, "690003", "", "食品", "3 C3;4 C3;"},
      {kCategory, "690003", "", "饮料", ""},
  };
  for (const auto& c : cases) {
    SearchCriteria criteria;
    criteria.start = {{2026, 11, 22}};
    criteria.end = {{2026, 11, 22}, 23, 59, 59};
    criteria.byCategory = c.byCategory;
    criteria.code = c.code;
    criteria.billNo = c.billNo;
    criteria.category = c.category;
    EXPECT_EQ(found(criteria), c.lines) << searchStatement(criteria).value();
  }
}

TEST_F(SearchTest, ASlipFindsItsBillAndWhatThePhonePaidAndNoNumberAsksNothing) {
  const std::tuple<int, const char*, const char*> bills[] = {
      {3, "0.1", "28A1"}, {4, "0.2", "3"}, {5, "7", "9999999999"}};
  for (const auto& [bill, phone, slip] : bills) {
    sell(bill, "2026-11-22 09:00:00", "A1", 1);
    settle(bill, "2026-11-22 09:00:00", 1, "2.5", phone, slip);
  }
  SearchCriteria criteria;
  criteria.start = {{2026, 11, 22}};
  criteria.end = {{2026, 11, 23}};
  for (const char* typed : {"x", " ", "1 or 1=1", "1;2", "--"}) {
    criteria.billNo = typed;
    EXPECT_FALSE(searchStatement(criteria)) << typed;
  }
  criteria.takesSlips = true;
  // A bill's number may be the code of another's slip.
  const std::tuple<const char*, const char*, const char*> cases[] = {{" ２８a1 ", "3 A1;", "0.1"},
                                                                     {"3", "3 A1;4 A1;", "0.3"},
                                                                     {"9999999999", "5 A1;", "7"},
                                                                     {"' or ''='", "", ""}};
  for (const auto& [typed, lines, sum] : cases) {
    criteria.billNo = typed;
    EXPECT_EQ(found(criteria), lines);
    const auto sums = tenderStatement(criteria, {&tenderKind(Tender::kPhone)});
    EXPECT_EQ(store.Open(sums).row(0).text("phone_pay"), sum);
  }
}
