#include "base/Currency.h"

#include <gmock/gmock.h>

#include <limits>

#include "base/Failure.h"
#include "base/NumberText.h"

namespace {

constexpr std::int64_t kLargest = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t kSmallest = std::numeric_limits<std::int64_t>::min();

Currency money(const std::string& text) {
  return Currency::parse(text).value();
}

// The rows are tenths of the last kept digit, once for each rule and each place it is used at.
TEST(CurrencyTest, RoundsByTheNamedRule) {
  const int rows[][3] = {{4, 0, 0},  {5, 0, 1},  {6, 1, 1}, {14, 1, 1},
                         {15, 2, 2}, {16, 2, 2}, {25, 2, 3}};
  for (const auto& [positive, positiveEven, positiveAway] : rows) {
    for (const int sign : {1, -1}) {
      const int tenths = sign * positive, even = sign * positiveEven, away = sign * positiveAway;
      SCOPED_TRACE(tenths);
      EXPECT_EQ(wholeHalfEven(Currency::fromScaled(tenths * 1000L)), even);
      EXPECT_EQ(wholeHalfEven(tenths / 10.0), even);
      EXPECT_EQ(parseWhole32(generalNumber(tenths / 10.0)), even);
      EXPECT_EQ(money(generalNumber(tenths * 1e-5)).scaled(), even);
      EXPECT_EQ(roundedToFen(Currency::fromScaled(tenths * 10L)).scaled(), away * 100L);
      EXPECT_EQ(twoDecimals(Currency::fromScaled(tenths * 10L)),
                twoDecimals(Currency::fromScaled(away * 100L)));
      EXPECT_EQ(oneDecimal(Currency::fromScaled(tenths * 100L)),
                oneDecimal(Currency::fromScaled(away * 1000L)));
      EXPECT_EQ(lineAmount(Currency::fromScaled(tenths * 10L), 1, Discount()).scaled(),
                away * 100L);
    }
  }
}

TEST(CurrencyTest, LineAmountIsTheDecimalProduct) {
  const std::tuple<const char*, double, double, const char*> rows[] = {
      {"2.5", 3, 1, "7.5"},
      {"1.15", 1, 0.9, "1.04"},  // 1.035
      {"1.15", -1, 0.9, "-1.04"},
      {"0.1", 0.15, 1, "0.02"},
      {"10.05", 0.1, 1, "1.01"},
      {"1.005", 1, 1, "1.01"},
      {"0.05", 1, 0.9F, "0.05"},           // as it comes out of a single-precision column
      {"0.0125", 0.7 + 0.1, 0.5, "0.01"},  // 0.005, though the sum is 0.7999...
      {"19.9", 0.333333333333333, 0.8888888, "5.9"},
      {"3", 1e-18, 1, "0"},
      {"9999999999.9999", 0.999999999999999, 0.9999999, "9999999000"}};
  for (const auto& [price, quantity, discount, amount] : rows)
    EXPECT_EQ(lineAmount(money(price), quantity, Discount(discount)), money(amount))
        << price << " x " << quantity << " x " << discount;
}

TEST(CurrencyTest, OverflowIsAFailureAndNeverAWrongSum) {
  const Currency most = Currency::fromScaled(kLargest), least = Currency::fromScaled(kSmallest);
  const Currency bit = Currency::fromScaled(1);
  EXPECT_EQ(most - bit + bit, most);
  const auto times = [most](double quantity, double discount = 1) {
    return [=] { (void)lineAmount(most, quantity, Discount(discount)); };
  };
  const std::function<void()> tooMuch[] = {[&] { (void)(most + bit); },
                                           [&] { (void)(least - bit); },
                                           [&] { (void)-least; },
                                           [] { (void)Currency::fromYuan(kLargest / 1000); },
                                           times(2),
                                           times(1e30),
                                           times(std::numeric_limits<double>::infinity()),
                                           times(std::numeric_limits<double>::quiet_NaN()),
                                           times(1, 1e30)};
  for (const auto& step : tooMuch)
    EXPECT_THAT(step, testing::ThrowsMessage<Overflow>("金额太大，超出了可以计算的范围。"));
}

TEST(CurrencyTest, TextAndBackKeepsEveryDigit) {
  const std::tuple<std::int64_t, const char*, const char*, const char*> rows[] = {
      {0, "0", "0.00", "0.0"},
      {-1, "-0.0001", "0.00", "0.0"},
      {-500, "-0.05", "-0.05", "-0.1"},
      {1000000, "100", "100.00", "100.0"},
      {125000, "12.5", "12.50", "12.5"},
      {kLargest, "922337203685477.5807", "922337203685477.58", "922337203685477.6"},
      {kSmallest, "-922337203685477.5808", "-922337203685477.58", "-922337203685477.6"}};
  for (const auto& [scaled, general, two, one] : rows) {
    const Currency value = Currency::fromScaled(scaled);
    EXPECT_EQ(generalNumber(value), general);
    EXPECT_EQ(twoDecimals(value) + " " + oneDecimal(value), two + std::string(" ") + one);
    EXPECT_EQ(Currency::parse(general), value);
  }
  for (const char* text : {"922337203685477.5808", "1e3", "12.3.4", "¥5"})
    EXPECT_EQ(Currency::parse(text), std::nullopt) << text;
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
