#include "base/Words.h"

#include <gtest/gtest.h>

namespace {

std::string shopEnglish(const char* chinese) {
  return std::string(chinese) == "%1 有 %2 件" ? "%2 pieces of %1, 100%" : "";
}

struct WordsTest : testing::Test {
  ~WordsTest() override { Words::speak(nullptr); }
};

}  // namespace

TEST_F(WordsTest, PartsFindTheirPlaceInEachLanguageAndAreNoPlaceholdersThemselves) {
  EXPECT_EQ(Words::tr("%1 有 %2 件", "可乐%2", 3), "可乐%2 有 3 件");
  Words::speak(shopEnglish);
  EXPECT_EQ(Words::tr("%1 有 %2 件", "可乐%2", 3), "3 pieces of 可乐%2, 100%");
  EXPECT_EQ(Words::tr("第 %1 行：%2%", std::string("x"), 50), "第 x 行：50%")
      << "not translated yet";
  EXPECT_EQ(Words::tr("九%折 %3"), "九%折 %3");
}
