#include "app/Language.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <fstream>

#include "TemporaryFolder.h"
#include "base/Words.h"
#include "platform/IniFile.h"
#include "saleslib/ClsSysParam.h"

TEST(LanguageTest, EnglishIsSpokenByWindowsRoomsAndLibraryWhereTheSettingsAskForIt) {
  const TemporaryFolder folder;
  const IniFile settings(folder.file("Config.ini"));
  const std::pair<const char*, bool> cases[] = {{"", false},
                                                {"[Till]\nLanguage=\n", false},
                                                {"[Till]\nLanguage=zh\n", false},
                                                {"Language=en\n", false},
                                                {"[till]\nlanguage= EN \n", true}};
  for (const auto& [text, isEnglish] : cases) {
    std::ofstream(folder.file("Config.ini")) << text;
    const Language language = chosenLanguage(settings);
    EXPECT_EQ(language == Language::kEnglish, isEnglish) << text;
    speak(language);
    EXPECT_EQ(QCoreApplication::translate("Modal", "确定"), isEnglish ? "OK" : "确定");
    EXPECT_EQ(Words::tr("磁盘已满。"), isEnglish ? "The disk is full." : "磁盘已满。");
    EXPECT_EQ(ClsSysParam::refusal("Nothing", ""),
              isEnglish ? "There is no parameter Nothing" : "没有这个参数：Nothing");
  }
  speak(Language::kChinese);
  EXPECT_EQ(QCoreApplication::translate("Modal", "确定"), "确定");
}
