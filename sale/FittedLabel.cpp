#include "sale/FittedLabel.h"

#include <QEvent>
#include <QFontMetrics>
#include <QPainter>
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
  if (event->type() == QEvent::FontChange) characters_.clear();
  return handled;
}

void FittedLabel::resizeEvent(QResizeEvent* event) {
  QLabel::resizeEvent(event);
  fit();
}

// Widths grow in proportion to the size of the type, so that one measurement is enough.
void FittedLabel::fit() {
  constexpr int kMeasured = 100;
  QFont measured = font();
  measured.setPixelSize(kMeasured);
  const int width = QFontMetrics(measured).horizontalAdvance(text());
  const int available = std::max(textRoom().width(), 1);
  const int fitting = width == 0 ? largest_ : kMeasured * available / (width + 1);
  const int size = std::clamp(fitting, std::min(smallest_, largest_), largest_);
  wraps_ = size > fitting;
  if (size == shown_) return;
  shown_ = size;
  // A font set by setFont would lose against the program's style sheet.
  setStyleSheet(QStringLiteral("font-size: %1px;").arg(size));
}

QRect FittedLabel::textRoom() const {
  const int padding = std::max(indent(), 0);
  return contentsRect().adjusted(padding, 0, -padding, 0);
}

void FittedLabel::paintEvent(QPaintEvent* event) {
  if (!wraps_) {
    QPainter painter(this);
    drawFrame(&painter);
    painter.setFont(font());
    painter.setPen(palette().color(foregroundRole()));
    if (characters_.draw(painter, textRoom(), alignment() & Qt::AlignRight, text(),
                         CharacterPictures::Overlong::kRefuse)) {
      return;
    }
  }
  QLabel::paintEvent(event);
}
