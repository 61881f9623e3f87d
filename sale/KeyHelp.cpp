#include "sale/KeyHelp.h"

#include <QPainter>
#include <algorithm>

#include "app/KeyBoard.h"
#include "platform/KeyName.h"
#include "platform/VirtualKey.h"

namespace {

struct Phrase {
  int KeyBoard::*key;
  const char* text;
};

constexpr Phrase kPhrases[] = {
    {&KeyBoard::mEsc, QT_TRANSLATE_NOOP("KeyHelp", "%1=退出")},
    {&KeyBoard::mEnter, QT_TRANSLATE_NOOP("KeyHelp", "%1=结账")},
    {&KeyBoard::mF2, QT_TRANSLATE_NOOP("KeyHelp", "%1=会员卡")},
    {&KeyBoard::mF3, QT_TRANSLATE_NOOP("KeyHelp", "%1=增加会员")},
    {&KeyBoard::mF4, QT_TRANSLATE_NOOP("KeyHelp", "%1删除最后一行")},
    {&KeyBoard::mF5, QT_TRANSLATE_NOOP("KeyHelp", "%1挂单")},
    {&KeyBoard::mF6, QT_TRANSLATE_NOOP("KeyHelp", "%1取单")},
    {&KeyBoard::mF8, QT_TRANSLATE_NOOP("KeyHelp", "%1补打小票查询销售")},
    {&KeyBoard::mF9, QT_TRANSLATE_NOOP("KeyHelp", "%1会员充值")},
    {&KeyBoard::mF12, QT_TRANSLATE_NOOP("KeyHelp", "%1=整单撤消")},
};
constexpr int KeyBoard::*kArrows[] = {&KeyBoard::mUp, &KeyBoard::mDown, &KeyBoard::mLeft,
                                      &KeyBoard::mRight};

/// A name that is no reason to break the phrase.
QString named(int code) {
  if (code == vk::kEscape) return QStringLiteral("ESC");
  const QString name = keyName(code);
  return name.isEmpty() ? QString::number(code) : QString(name).replace(' ', QChar::Nbsp);
}

bool areArrows(const KeyBoard& keys) {
  return std::ranges::all_of(kArrows, [&](auto key) { return keys.*key == KeyBoard().*key; });
}

}  // namespace

void KeyHelp::show(const KeyBoard& keys) {
  QStringList phrases;
  for (const Phrase& phrase : kPhrases) {
    if (keys.*phrase.key != 0) phrases += tr(phrase.text).arg(named(keys.*phrase.key));
  }
  QStringList figures;
  for (const auto key : kArrows) {
    if (keys.*key != 0) figures += named(keys.*key);
  }
  const QString arrows = areArrows(keys) ? tr("方向箭头") : figures.join('/');
  if (!figures.isEmpty()) phrases += tr("%1改数量折扣").arg(arrows);
  setText(phrases.join(' '));
}

int KeyHelp::heightForWidth(int width) const {
  return static_cast<int>(lines(width).size()) * fontMetrics().lineSpacing();
}

QStringList KeyHelp::lines(int width) const {
  QStringList filled;
  for (const QString& phrase : text().split(' ', Qt::SkipEmptyParts)) {
    const QString longer = filled.isEmpty() ? phrase : filled.back() + "  " + phrase;
    if (!filled.isEmpty() && fontMetrics().horizontalAdvance(longer) <= width) {
      filled.back() = longer;
    } else {
      filled << phrase;
    }
  }
  return filled;
}

void KeyHelp::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setPen(palette().color(QPalette::WindowText));
  painter.drawText(rect(), Qt::AlignCenter, lines(width()).join('\n'));
}
