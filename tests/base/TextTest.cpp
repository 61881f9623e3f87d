#include "base/Text.h"

#include <gmock/gmock.h>

#include "base/Failure.h"

namespace {

TEST(Text, TrimsEveryKindOfBlank) {
  EXPECT_EQ(trimmed(" \t\u3000 a\u3000b \r\n\u3000"), "a\u3000b");
  EXPECT_EQ(trimmed("\u3000 "), "");
  EXPECT_EQ(trimmed("中"), "中");
}

TEST(Text, FoldsFullWidthAndLeavesTheRest) {
  EXPECT_EQ(halfWidth("Ａｂ１２．５－！～\u3000中、\xFF"), "Ab12.5-!~ 中、\xFF");
}

TEST(Text, CountsCharactersNotBytes) {
  EXPECT_EQ(characters("a中😀"), 3U);
  EXPECT_EQ(characters("\xE4\xB8"
                       "a\xC0\x80"),
            5U);
  EXPECT_EQ(firstCharacters("a中😀b", 2), "a中");
  EXPECT_EQ(firstCharacters("中", 9), "中");
}

TEST(Text, ComparesWithoutAsciiCaseOnly) {
  EXPECT_TRUE(equalIgnoringCase("Config.INI", "config.ini"));
  EXPECT_FALSE(equalIgnoringCase("config", "config.ini"));
  EXPECT_EQ(asciiLower("[ÀZ]"), "[Àz]");
}

TEST(Text, ReplacesEachOccurrenceOnce) {
  EXPECT_EQ(replaced("it's 'x'", "'", "''"), "it''s ''x''");
  EXPECT_EQ(replaced("aaa", "aa", "a"), "aa");
}

TEST(Ensure, StopsOnABug) {
  ensure(true, "fine");
  EXPECT_DEATH(ensure(false, "totals add up"), "TextTest.cpp.*totals add up");
}

}  // namespace
