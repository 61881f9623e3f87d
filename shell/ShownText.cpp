#include "shell/ShownText.h"

namespace {

constexpr int kMostColumns = 320;
constexpr int kLongestRun = 24;
constexpr QChar kBreakHere(0x200B);  // zero-width space
constexpr QChar kEllipsis(0x2026);

// Chinese characters are two columns wide, and a line may break after each; Latin text and figures
// break only at blanks.
bool isChinese(QChar character) {
  return character.unicode() >= 0x2E80 && !character.isSurrogate();
}

}  // namespace

QString shownText(const QString& text) {
  QString shown;
  int columns = 0;
  int run = 0;
  for (const QChar character : text) {
    columns += isChinese(character) ? 2 : 1;
    if (columns > kMostColumns && !character.isLowSurrogate()) return shown + kEllipsis;
    run = isChinese(character) || character.isSpace() ? 0 : run + 1;
    if (run > kLongestRun && !character.isLowSurrogate()) {
      shown += kBreakHere;
      run = 1;
    }
    shown += character;
  }
  return shown;
}
