#include "shell/ShownText.h"

namespace {

constexpr qsizetype kLongest = 400;
constexpr int kLongestRun = 24;
constexpr QChar kBreakHere(0x200B);  // zero-width space

// Chinese text may break anywhere by itself; Latin text and figures only at blanks.
bool breaksByItself(QChar character) {
  return character.isSpace() || (character.unicode() >= 0x2E80 && !character.isSurrogate());
}

}  // namespace

QString shownText(const QString& text) {
  const bool cut = text.size() > kLongest;
  QString shown;
  int run = 0;
  for (const QChar character : QStringView(text).left(kLongest)) {
    run = breaksByItself(character) ? 0 : run + 1;
    if (run > kLongestRun && !character.isLowSurrogate()) {
      shown += kBreakHere;
      run = 1;
    }
    shown += character;
  }
  if (!cut) return shown;
  if (shown.back().isHighSurrogate()) shown.chop(1);
  return shown + QChar(0x2026);
}
