#include <gmock/gmock.h>

#include "base/DateTime.h"
#include "reports/ResultList.h"

namespace {

using testing::ElementsAre;
using Texts = std::vector<std::string>;

/// A list that grows by a page of one line, of goods of its own, with each add().
struct Found : ResultList {
  void add(int bill, const char* time, const char* name, double quantity, const char* price,
           const char* barcode) {
    const auto money = Currency::parse(price);
    append({{{parseDateTime(time), bill, goods++, quantity, money, 0.9F, money}},
            {{"A1", name, "包", barcode, ""}},
            {}});
  }
  void addEmpty() {
    SoldLine line;
    line.goods = goods++;
    append({{line}, {{}}, {}});
  }
  std::uint32_t goods = 0;
};

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

TEST(ResultListTest, ShowsLinesAndTotalsAndSaysSumsThatDoNotFit) {
  Found list;
  list.add(12, "2026-11-22 00:00:00", "面", 2.5, "123.5", "690");
  list.addEmpty();
  list.add(12, "2026-11-22 09:05:03", "水", 39999.5, "0.25", "691");
  Found huge = list;
  list.complete();
  EXPECT_THAT(row(list, 0), ElementsAre("2026-11-22", "12", "A1", "面", "包", "2.5", "123.5", "0.9",
                                        "123.5", "***", "***", "***", "690", ""));
  EXPECT_THAT(row(list, 1),
              ElementsAre("", "", "", "", "", "", "", "", "", "***", "***", "***", "", ""));
  EXPECT_THAT(row(list, 3), ElementsAre("合计", "", "", "", "", "40002", "", "", "123.75", "",
                                        "***", "***", "", ""));
  for (int i = 0; i < 2; ++i)
    huge.add(1, "2026-11-22 09:00:00", "面", 9e18, "900000000000000", "690");
  huge.complete();
  EXPECT_EQ(huge.text(5, kColumnQuantity) + huge.text(5, kColumnMoney), "超出范围超出范围");
}

TEST(ResultListTest, SortsEachColumnByWhatItIsAndKeepsTheTotalsLast) {
  Found found;
  found.add(10, "2026-11-22 09:00:00", "b", 10, "9.5", "10");
  found.add(9, "2026-11-22 10:00:00", "a", 9, "10", "9");
  found.addEmpty();
  found.add(100, "2026-02-01 23:00:00", "B", -1, "100", "100");
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
