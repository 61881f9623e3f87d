#include "app/Language.h"

#include <QCoreApplication>
#include <QTranslator>

#include "base/Failure.h"
#include "base/Text.h"
#include "base/Words.h"
#include "platform/IniFile.h"
#include "saleslib/SaleWords.h"

namespace {

QTranslator& english() {
  static auto* const texts = [] {
    auto* loaded = new QTranslator;  // threads may still ask for texts while the program ends
    ensure(loaded->load(":/app/till_en.qm"), "the English texts are built into the program");
    return loaded;
  }();
  return *texts;
}

std::string inEnglish(const char* chinese) {
  return english().translate("Words", chinese).toStdString();
}

}  // namespace

Language chosenLanguage(const IniFile& settings) {
  const std::string word = settings.read("Till", "Language").value_or("");
  return equalIgnoringCase(word, "en") ? Language::kEnglish : Language::kChinese;
}

void speak(Language language) {
  const Words::Catalogue catalogue = language == Language::kEnglish ? inEnglish : nullptr;
  Words::speak(catalogue);
  speakInSaleLibrary(catalogue);
  if (QCoreApplication::instance() == nullptr) return;
  QTranslator* windows = &english();
  language == Language::kEnglish ? QCoreApplication::installTranslator(windows)
                                 : QCoreApplication::removeTranslator(windows);
}
