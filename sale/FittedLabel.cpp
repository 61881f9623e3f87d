#include "sale/FittedLabel.h"

#include <QEvent>
#include <QFontMetrics>
#include <QPainter>
#include <QTextLayout>
#include <algorithm>
#include <numeric>

FittedLabel::FittedLabel(QWidget* parent) : QLabel(parent) {
  setTextFormat(Qt::PlainText);
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
  if (text == this->text()) return;
  setText(text);
  fit();
}

bool FittedLabel::event(QEvent* event) {
  const bool handled = QLabel::event(event);
  if (event->type() == QEvent::ContentsRectChange || event->type() == QEvent::FontChange) fit();
  return handled;
}

void FittedLabel::resizeEvent(QResizeEvent* event) {
  QLabel::resizeEvent(event);
  fit();
}

QFont FittedLabel::sized(int size) const {
  QFont font = this->font();
  font.setPixelSize(std::max(size, 1));
  return font;
}

// Widths grow in proportion to the size of the type, so that one measurement is enough.
int FittedLabel::fittingSize(const QString& text) const {
  constexpr int kMeasured = 100;
  const int width = QFontMetrics(sized(kMeasured)).horizontalAdvance(text);
  return std::min(largest_, kMeasured * std::max(textRoom().width(), 1) / (width + 1));
}

void FittedLabel::fit() {
  const int before = lines_.empty() ? 0 : lines_.front().size;
  lines_.clear();
  const QStringList texts = text().split('\n');
  for (const QString& each : texts) {
    const int size = fittingSize(each);
    if (size < smallest_ && texts.size() == 1) {
      wrap(each);
    } else {
      lines_.push_back({each, std::max(size, std::min(smallest_, largest_))});
    }
  }
  if (lines_.front().size != before) characters_.clear();
  update();
}

void FittedLabel::wrap(const QString& text) {
  const QFont font = sized(smallest_);
  const int most = std::max(1, textRoom().height() / QFontMetrics(font).height());
  QTextLayout layout(text, font);
  QTextOption option;
  option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  layout.setTextOption(option);
  layout.beginLayout();
  for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
    line.setLineWidth(textRoom().width());
    const bool last = static_cast<int>(lines_.size()) + 1 == most;
    const int length = last ? -1 : line.textLength();
    lines_.push_back({text.mid(line.textStart(), length), smallest_});
    if (last) break;
  }
  layout.endLayout();
}

QRect FittedLabel::textRoom() const {
  const int padding = std::max(indent(), 0);
  return contentsRect().adjusted(padding, 0, -padding, 0);
}

void FittedLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  drawFrame(&painter);
  painter.setPen(palette().color(foregroundRole()));
  const QRect room = textRoom();
  const bool centred = alignment() & Qt::AlignHCenter;
  if (lines_.size() == 1 && !centred) {
    painter.setFont(sized(lines_.front().size));
    if (characters_.draw(painter, room, alignment() & Qt::AlignRight, lines_.front().text,
                         CharacterPictures::Overlong::kRefuse)) {
      return;
    }
  }
  const auto heightOf = [this](const Line& line) {
    return QFontMetrics(sized(line.size)).height();
  };
  const int height =
      std::accumulate(lines_.begin(), lines_.end(), 0,
                      [&](int sum, const Line& line) { return sum + heightOf(line); });
  int top = room.top() + std::max(0, (room.height() - height) / 2);
  for (const Line& line : lines_) {
    painter.setFont(sized(line.size));
    const QRect place(room.left(), top, room.width(), heightOf(line));
    const QString text = painter.fontMetrics().elidedText(line.text, Qt::ElideRight, room.width());
    painter.drawText(place, int(alignment() & Qt::AlignHorizontal_Mask) | Qt::AlignVCenter, text);
    top = place.bottom() + 1;
  }
}
