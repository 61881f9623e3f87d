#include <gmock/gmock.h>

#include <map>

#include "reports/ResultList.h"
#include "store/Row.h"

namespace {

using testing::ElementsAre;
using Texts = std::vector<std::string>;

/// A row as the data file gives it; what is not set is missing.
class GivenRow : public Row {
 public:
  explicit GivenRow(std::map<std::string, Value> fields) : fields_(std::move(fields)) {}

 protected:
  Value field(std::string_view column) const override {
    const auto found = fields_.find(std::string(column));
    return found == fields_.end() ? Value{} : found->second;
  }

 private:
  std::map<std::string, Value> fields_;
};

std::map<std::string, Value> sold(int bill, const char* time, const char* name, double quantity,
                                  double price, const char* barcode) {
  return {{"sellId", toValue(bill)}, {"insert_Date", toValue(time)},
          {"bm", toValue("A1")},     {"name", toValue(name)},
          {"unit", toValue("包")},   {"amount", toValue(quantity)},
          {"price", toValue(price)}, {"discount", toValue(0.9F)},
          {"money", toValue(price)}, {"f_sptm", toValue(barcode)}};
}

SoldPage pageOf(const std::vector<std::map<std::string, Value>>& rows) {
  SoldLineCollector lines;
  for (const auto& row : rows) lines.take(GivenRow(row));
  return lines.page();
}

Texts column(const ResultList& list, ResultColumn column) {
  Texts texts;
  for (std::size_t row = 0; row < list.rowCount(); ++row) texts.push_back(list.text(row, column));
  return texts;
}

Texts row(const ResultList& list, std::size_t row) {
  Texts texts;
  for (int i = 0; i < kResultColumns; ++i) texts.push_back(list.text(row, ResultColumn(i)));
  return texts;
}

TEST(ResultListTest, ShowsLinesAndTotals) {
  ResultList list;
  list.append(pageOf({sold(12, "2026-11-22 00:00:00", "面", 2.5, 123.5, "690"), {}}));
  list.append(pageOf({sold(12, "2026-11-22 09:05:03", "水", 39999.5, 0.25, "691")}));
  list.complete();
  EXPECT_THAT(row(list, 0), ElementsAre("2026-11-22", "12", "A1", "面", "包", "2.5", "123.5", "0.9",
                                        "123.5", "***", "***", "***", "690", ""));
  EXPECT_THAT(row(list, 1),
              ElementsAre("", "", "", "", "", "", "", "", "", "***", "***", "***", "", ""));
  EXPECT_THAT(row(list, 3), ElementsAre("合计", "", "", "", "", "40002", "", "", "123.75", "",
                                        "***", "***", "", ""));
}

TEST(ResultListTest, SaysSumsThatDoNotFit) {
  const auto huge = sold(1, "2026-11-22 09:00:00", "面", 9e18, 9e14, "690");
  ResultList list;
  list.append(pageOf({huge, huge, sold(2, "2026-11-22 09:00:01", "水", 1, 1, "691")}));
  list.complete();
  EXPECT_EQ(list.text(3, kColumnQuantity) + list.text(3, kColumnMoney), "超出范围超出范围");
}

TEST(ResultListTest, SortsEachColumnByWhatItIsAndKeepsTheTotalsLast) {
  ResultList found;
  found.append(pageOf({sold(10, "2026-11-22 09:00:00", "b", 10, 9.5, "10"),
                       sold(9, "2026-11-22 10:00:00", "a", 9, 10, "9"),
                       {},
                       sold(100, "2026-02-01 23:00:00", "B", -1, 100, "100")}));
  found.complete();
  const struct {
    ResultColumn column;
    bool descending;
    Texts texts;
  } cases[] = {
      {kColumnTime,
       false,
       {"", "2026-02-01 23:00:00", "2026-11-22 09:00:00", "2026-11-22 10:00:00", "合计"}},
      {kColumnBill, false, {"", "9", "10", "100", ""}},
      {kColumnName, true, {"b", "B", "a", "", ""}},
      {kColumnQuantity, false, {"", "-1", "9", "10", "18"}},
      {kColumnMoney, true, {"100", "10", "9.5", "", "119.5"}},
      {kColumnBarcode, false, {"", "10", "100", "9", ""}},
  };
  for (const auto& c : cases) {
    ResultList list = found;
    list.sort(c.column, c.descending);
    EXPECT_EQ(column(list, c.column), c.texts) << resultColumns()[c.column].header;
  }
}

}  // namespace
