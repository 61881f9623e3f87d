#include "base/Currency.h"

#include <gmock/gmock.h>

#include <limits>

#include "base/Failure.h"
#include "base/NumberText.h"

namespace {

constexpr std::int64_t kLargest = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t kSmallest = std::numeric_limits<std::int64_t>::min();

Currency money(const char* text) {
  return Currency::parse(text).value();
}

// The rows are tenths of the last kept digit, once for each rule and each place it is used at.
TEST(CurrencyTest, RoundsByTheNamedRule) {
  struct Row {
    int tenths, even, away;
  };
  for (const Row& row : {Row{4, 0, 0}, Row{5, 0, 1}, Row{6, 1, 1}, Row{14, 1, 1}, Row{15, 2, 2},
                         Row{16, 2, 2}, Row{25, 2, 3}}) {
    for (const int sign : {1, -1}) {
      SCOPED_TRACE(sign * row.tenths);
      const int tenths = sign * row.tenths;
      EXPECT_EQ(wholeHalfEven(Currency::fromScaled(tenths * 1000)), sign * row.even);
      EXPECT_EQ(wholeHalfEven(tenths / 10.0), sign * row.even);
      EXPECT_EQ(parseWhole32(generalNumber(tenths / 10.0)), sign * row.even);
      const std::string fiveDecimals = generalNumber(tenths * 1e-5);
      EXPECT_EQ(money(fiveDecimals.c_str()).scaled(), sign * row.even) << fiveDecimals;
      EXPECT_EQ(roundedToFen(Currency::fromScaled(tenths * 10)).scaled(), sign * row.away * 100);
      EXPECT_EQ(twoDecimals(Currency::fromScaled(tenths * 10)),
                twoDecimals(Currency::fromScaled(sign * row.away * 100)));
      EXPECT_EQ(oneDecimal(Currency::fromScaled(tenths * 100)),
                oneDecimal(Currency::fromScaled(sign * row.away * 1000)));
      EXPECT_EQ(lineAmount(Currency::fromScaled(tenths * 10), 1, Discount()).scaled(),
                sign * row.away * 100);
    }
  }
}

TEST(CurrencyTest, LineAmountIsTheDecimalProduct) {
  struct Row {
    const char* price;
    double quantity, discount;
    const char* amount;
  };
  for (const Row& row :
       {Row{"2.5", 3, 1, "7.5"}, Row{"1.15", 1, 0.9, "1.04"},  // 1.035
        Row{"1.15", -1, 0.9, "-1.04"}, Row{"0.1", 0.15, 1, "0.02"}, Row{"10.05", 0.1, 1, "1.01"},
        Row{"1.005", 1, 1, "1.01"},
        Row{"0.0125", 0.7 + 0.1, 0.5, "0.01"},  // 0.005, though the sum is 0.7999...
        Row{"19.9", 0.333333333333333, 0.8888888, "5.9"}, Row{"3", 1e-18, 1, "0"},
        Row{"9999999999.9999", 0.999999999999999, 0.9999999, "9999999000"}}) {
    EXPECT_EQ(lineAmount(money(row.price), row.quantity, Discount(row.discount)), money(row.amount))
        << row.price << " x " << row.quantity << " x " << row.discount;
  }
  // 0.9 as it comes out of a single-precision column.
  EXPECT_EQ(lineAmount(money("0.05"), 1, Discount(0.9F)), money("0.05"));
}

TEST(CurrencyTest, OverflowIsAFailureAndNeverAWrongSum) {
  const Currency most = Currency::fromScaled(kLargest);
  const Currency least = Currency::fromScaled(kSmallest);
  const Currency bit = Currency::fromScaled(1);
  EXPECT_EQ(most - bit + bit, most);
  EXPECT_THROW(most + bit, Overflow);
  EXPECT_THROW(least - bit, Overflow);
  EXPECT_THROW(-least, Overflow);
  EXPECT_THROW(Currency::fromYuan(kLargest / 1000), Overflow);
  for (const double quantity : {2.0, 1e30, std::numeric_limits<double>::infinity(),
                                std::numeric_limits<double>::quiet_NaN()}) {
    EXPECT_THROW(lineAmount(most, quantity, Discount()), Overflow) << quantity;
  }
  EXPECT_THROW(lineAmount(most, 1, Discount(1e30)), Overflow);
}

TEST(CurrencyTest, TextAndBackKeepsEveryDigit) {
  struct Row {
    std::int64_t scaled;
    const char *general, *two, *one;
  };
  for (const Row& row :
       {Row{0, "0", "0.00", "0.0"}, Row{-1, "-0.0001", "0.00", "0.0"},
        Row{-500, "-0.05", "-0.05", "-0.1"}, Row{1000000, "100", "100.00", "100.0"},
        Row{125000, "12.5", "12.50", "12.5"},
        Row{kLargest, "922337203685477.5807", "922337203685477.58", "922337203685477.6"},
        Row{kSmallest, "-922337203685477.5808", "-922337203685477.58", "-922337203685477.6"}}) {
    const Currency value = Currency::fromScaled(row.scaled);
    EXPECT_EQ(generalNumber(value), row.general);
    EXPECT_EQ(twoDecimals(value), row.two);
    EXPECT_EQ(oneDecimal(value), row.one);
    EXPECT_EQ(Currency::parse(row.general), value);
  }
  for (const char* text : {"922337203685477.5808", "1e3", "12.3.4", "¥5"}) {
    EXPECT_EQ(Currency::parse(text), std::nullopt) << text;
  }
}

TEST(CurrencyTest, PointsRoundTheWholeSum) {
  EXPECT_EQ(pointsAfter(money("25"), 10, 0), 2);
  EXPECT_EQ(pointsAfter(money("25"), 10, 1), 4);  // 3.5
  EXPECT_EQ(pointsAfter(money("-25"), 10, 1), -2);
  EXPECT_EQ(pointsAfter(money("1"), 1, 32766), 32767);
  EXPECT_EQ(pointsAfter(money("2"), 1, 32766), std::nullopt);
  EXPECT_EQ(pointsAfter(money("1"), 0, 5), std::nullopt);
}

}  // namespace
