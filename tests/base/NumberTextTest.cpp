#include "base/NumberText.h"

#include <gmock/gmock.h>

#include <limits>

#include "base/Discount.h"
#include "base/Failure.h"

TEST(NumberTextTest, WritesTheGeneralForm) {
  using Row = std::pair<double, const char*>;
  for (const auto& [value, text] :
       {Row{0, "0"}, Row{-0.0, "0"}, Row{0.1 + 0.2, "0.3"}, Row{-12.5, "-12.5"}, Row{100, "100"},
        Row{1e15, "1000000000000000"}, Row{1e-15, "0.000000000000001"}, Row{-1e-16, "-1E-16"},
        Row{123456789012345678.0, "1.23456789012346E+17"}, Row{1 / 3.0, "0.333333333333333"}})
    EXPECT_EQ(generalNumber(value), text);
}

TEST(NumberTextTest, ReadsWhatPeopleType) {
  using Row = std::pair<const char*, double>;
  for (const auto& [text, value] :
       {Row{"12", 12}, Row{" +12.50\t", 12.5}, Row{"-.5", -0.5}, Row{"5.", 5}, Row{"０１．５", 1.5},
        Row{"\u3000－３\u3000", -3}, Row{"0.1", 0.1},
        Row{"123456789.123456789", 123456789.123456789}, Row{"1.50000000000000000000000000", 1.5}})
    EXPECT_EQ(parseNumber(text), value) << text;
  for (const char* text : {"", " ", ".", "-", "+-1", "1-", "1 2", "1E3", "0x10", "1,000", "nan",
                           "1.2.3", "一", "\xFF", "99999999999999999999", "0.1234567890123456789"})
    EXPECT_EQ(parseNumber(text), std::nullopt) << text;
  EXPECT_EQ(parseNumber(std::string(10000, '7')), std::nullopt);
}

TEST(NumberTextTest, WholeNumbersFitOrAreNothing) {
  EXPECT_EQ(parseWhole16("32767.4"), 32767);
  EXPECT_EQ(parseWhole16("32767.5"), std::nullopt);
  EXPECT_EQ(parseWhole16("-32768.5"), -32768);
  EXPECT_EQ(parseWhole32("2147483648"), std::nullopt);
  const auto overflows = testing::ThrowsMessage<Overflow>("数值超出了可以计算的范围。");
  EXPECT_THAT([] { (void)generalNumber(std::numeric_limits<double>::infinity()); }, overflows);
  for (const double absurd : {1e19, std::numeric_limits<double>::quiet_NaN()})
    EXPECT_THAT([=] { (void)wholeHalfEven(absurd); }, overflows);
}

TEST(NumberTextTest, QuantitiesSumWithoutDrift) {
  double stock = 100.3;
  for (int i = 0; i < 1000; ++i) stock = roundedQuantity(stock - 0.1);
  EXPECT_EQ(stock, 0.3);
  EXPECT_EQ(roundedQuantity(roundedQuantity(12.345678 - 0.1) + 0.1), 12.345678);
  EXPECT_EQ(generalNumber(roundedQuantity(-0.0000001)), "0");
}

TEST(DiscountTest, IsTheDecimalThatItShows) {
  EXPECT_EQ(generalNumber(Discount(0.9F)), "0.9");
  EXPECT_EQ(Discount(0.85F), Discount(0.85));
  EXPECT_EQ(generalNumber(Discount(0.12345675)), "0.1234568");
  EXPECT_EQ(generalNumber(Discount(-0.0)), "0");
  EXPECT_TRUE(Discount(std::numeric_limits<double>::quiet_NaN()).isNone());
}
