#include "sale/SellStyle.h"

#include <QColor>
#include <algorithm>

#include "app/ClsPosSet.h"
#include "shell/Style.h"

namespace {

constexpr int kSmallest = 16;
constexpr int kLargest = 28;
constexpr int kTypesPerWidth = 62;

QString css(int bgr) {
  return settingColour(bgr).name();
}

// A text in the colour of its background would hide the bill: all six colours are 0 until they are
// set.
QString textCss(int fore, int back) {
  return fore == back ? legibleOn(settingColour(back)).name() : css(fore);
}

// A style sheet reaches into the dialogs that the screen owns: what they have too is told apart by
// its parent. The help line has no colour of its own among the settings: it reads on whatever C1
// is.
QString colours(const ClsPosSet& settings) {
  return QStringLiteral(
             "#frmSell { background: %1; }"
             "#txtmoney { background: %2; color: %3; }"
             "#lblViewMember { color: %4; }"
             "#frmSell > #title { color: %5; }"
             "#frmSell[practice=\"true\"] > #title { background: #c43b00; color: white; }"
             "#frmSell > #title1, #frmSell > #title2, #frmSell > #title3 { color: %6; }"
             "#ViewF { color: %7; }"
             "#lv { selection-background-color: #ffe08a; selection-color: black; }"
             "#lv QScrollBar { background: #eef2f6; width: 14px; }"
             "#lv QScrollBar::handle { background: #8a98a6; min-height: 30px; }"
             "#lv QScrollBar::add-line, #lv QScrollBar::sub-line { height: 0; }")
      .arg(css(settings.C1), css(settings.C2), textCss(settings.C3, settings.C2),
           textCss(settings.C4, settings.C2), textCss(settings.C5, settings.C1),
           textCss(settings.C6, settings.C1), legibleOn(settingColour(settings.C1)).name());
}

QString sizes(int type) {
  return QStringLiteral(
             "#frmSell > #title { font-size: %2px; font-weight: bold; }"
             "#txtmoney { font-weight: bold; }"
             "#title1, #title2, #title3, #lv QHeaderView, #ViewF { font-size: %1px; }"
             "#t { border: none; border-radius: 0; }"
             "#lv QHeaderView::section { padding: 0 %3px; }")
      .arg(type)
      .arg(type * 2)
      .arg(type / 3);
}

}  // namespace

int sellTypeSize(int screenWidth) {
  return std::clamp(screenWidth / kTypesPerWidth, kSmallest, kLargest);
}

QString sellStyleSheet(const ClsPosSet& settings, int type) {
  return colours(settings) + sizes(type);
}
