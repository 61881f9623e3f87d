#include "sale/KeyHelp.h"

#include <QPainter>

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
