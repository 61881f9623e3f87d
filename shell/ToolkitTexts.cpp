#include "shell/ToolkitTexts.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>

#include "app/Language.h"
#include "base/Failure.h"

void loadToolkitTexts(Language language) {
  if (language == Language::kEnglish) {  // the toolkit's own
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    return;
  }
  QLocale::setDefault(QLocale(QLocale::Chinese, QLocale::China));
  auto* texts = new QTranslator(QCoreApplication::instance());
  ensure(texts->load(":/shell/qtbase_zh_CN.qm"), "the toolkit's texts are built into the program");
  QCoreApplication::installTranslator(texts);
}
