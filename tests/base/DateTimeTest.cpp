#include "base/DateTime.h"

#include <gmock/gmock.h>

const DateTime kSunday{{2026, 11, 22}, 9, 5, 3};

TEST(DateTimeTest, IsWrittenAsPeopleAndTheDataFileHaveIt) {
  const DateTime midnight{{2026, 1, 2}};
  EXPECT_EQ(generalText(kSunday), "2026-11-22 09:05:03");
  EXPECT_EQ(generalText(midnight), "2026-01-02");
  EXPECT_EQ(storedText({{33, 1, 2}}), "0033-01-02 00:00:00");
  EXPECT_EQ(accessLiteral(kSunday), "#2026-11-22 09:05:03#");
}

TEST(DateTimeTest, ReadsWhatPeopleTypeAndRefusesTheRest) {
  const std::pair<const char*, DateTime> rows[] = {
      {"2026/11/22 9:5:03", kSunday},
      {" 2026-11-22 09:05 ", {{2026, 11, 22}, 9, 5, 0}},
      {"２０２６－１１－２２", {{2026, 11, 22}}},
      {"2024-2-29", {{2024, 2, 29}}}};
  for (const auto& [text, value] : rows) EXPECT_EQ(parseDateTime(text), value) << text;
  for (const char* text : {"", "2025-2-29", "2026-13-01", "0000-01-01", "26-11-22", "2026-11/22",
                           "2026-11-22x", "2026-11-22 24:00", "2026-11-22 9:05:", "09:05"}) {
    EXPECT_EQ(parseDateTime(text), std::nullopt) << text;
  }
}

TEST(DateTimeTest, ReadsDatesAndTimesTypedInAnyOrderlyForm) {
  const Date day = kSunday.date;
  for (const char* text : {"20261122", "2026-11-22", "2026/11/22", " 2026.11.22 ", "1122", "11.22",
                           "２０２６－１１－２２"})
    EXPECT_EQ(parseTypedDate(text, 2026), day) << text;
  for (const char* text : {"", "2026", "261122", "26-11-22", "2025-02-29", "20261301", "0010-1-1",
                           "2026-11-22 9:05", "11-22-", "-11-22", "112", "2026-11-22-1"})
    EXPECT_EQ(parseTypedDate(text, 2026), std::nullopt) << text;
  for (const char* text : {"090503", "90503", "09:05:03", "9.5.3", "９：０５：０３"})
    EXPECT_EQ(parseTypedTime(text, day), kSunday) << text;
  for (const char* text : {"905", "9:05", "0905", "9.5"})
    EXPECT_EQ(parseTypedTime(text, day), (DateTime{day, 9, 5})) << text;
  EXPECT_EQ(parseTypedTime("9", day), (DateTime{day, 9}));
  for (const char* text : {"", "24", "960", "0905036", "9:05:", "9-05", "9:05:03:00", "x"})
    EXPECT_EQ(parseTypedTime(text, day), std::nullopt) << text;
}

TEST(DateTimeTest, PlusDaysFollowsTheCalendar) {
  EXPECT_EQ(plusDays({2024, 2, 28}, 2), (Date{2024, 3, 1}));
  EXPECT_EQ(plusDays({2026, 1, 1}, -1), (Date{2025, 12, 31}));
  EXPECT_EQ(plusDays({2026, 1, 1}, -2147483647 - 1), (Date{1, 1, 1}));
}
