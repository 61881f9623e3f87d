#include "base/Text.h"

#include <gmock/gmock.h>

#include "base/Failure.h"

TEST(TextTest, TakesWhatPeopleType) {
  EXPECT_EQ(trimmed(" \t\u3000 a\u3000b \r\n\u3000"), "a\u3000b");
  EXPECT_EQ(halfWidth("Ａｂ１２．５－！～\u3000中、\xFF"), "Ab12.5-!~ 中、\xFF");
  EXPECT_EQ(characters("a中😀\xE4"), 4U);
  EXPECT_EQ(firstCharacters("a中😀b", 2), "a中");
  EXPECT_TRUE(equalIgnoringCase("Config.INI", "config.ini"));
  EXPECT_FALSE(equalIgnoringCase("config", "config.ini"));
  for (const char* text : {"a\nb", "\x1B", "\x7F", "中\u0085"})
    EXPECT_TRUE(hasControlCharacter(text)) << text;
  EXPECT_FALSE(hasControlCharacter("a 中\u00A0é"));
  EXPECT_EQ(replaced("it's 'x'", "'", "''"), "it''s ''x''");
}

TEST(EnsureTest, StopsOnABug) {
  EXPECT_DEATH(ensure(false, "totals add up"), "TextTest.cpp.*totals add up");
}
