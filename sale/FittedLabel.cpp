#include "sale/FittedLabel.h"

#include <QEvent>
#include <QFontMetrics>
#include <algorithm>

FittedLabel::FittedLabel(QWidget* parent) : QLabel(parent) {
  setTextFormat(Qt::PlainText);
  setWordWrap(true);
}

void FittedLabel::setLargest(int size) {
  largest_ = size;
  fit();
}

void FittedLabel::setSmallest(int size) {
  smallest_ = size;
  fit();
}

void FittedLabel::showText(const QString& text) {
  setText(text);
  fit();
}

bool FittedLabel::event(QEvent* event) {
  const bool handled = QLabel::event(event);
  if (event->type() == QEvent::ContentsRectChange) fit();
  return handled;
}

void FittedLabel::resizeEvent(QResizeEvent* event) {
  QLabel::resizeEvent(event);
  fit();
}

// Widths grow in proportion to the size of the type, so that one measurement is enough.
void FittedLabel::fit() {
  constexpr int kMeasured = 100;
  constexpr int kPadding =
      24;  // both sides, at most: the style sheet's padding is not in the rectangle
  QFont measured = font();
  measured.setPixelSize(kMeasured);
  const int width = QFontMetrics(measured).horizontalAdvance(text());
  const int available = std::max(contentsRect().width() - kPadding, 1);
  const int fitting = width == 0 ? largest_ : kMeasured * available / (width + 1);
  const int size = std::clamp(fitting, std::min(smallest_, largest_), largest_);
  if (size == shown_) return;
  shown_ = size;
  // A font set by setFont would lose against the program's style sheet.
  setStyleSheet(QStringLiteral("font-size: %1px;").arg(size));
}
