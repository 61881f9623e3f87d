#include "shell/MenuEntries.h"

#include <QCursor>
#include <QFontMetrics>
#include <QMouseEvent>
#include <QPainter>
#include <QtMath>
#include <algorithm>

#include "platform/Twips.h"

namespace {

constexpr int kDesignWidth = 5190;  // twips, as wide as a menu of short captions is
constexpr int kCaptionMargin = 18;  // left and right of a caption
constexpr int kRowMargin = 6;       // above and below a caption
constexpr int kScrollMarkWidth = 6;
constexpr int kWheelRows = 3;

}  // namespace

MenuEntries::MenuEntries(QWidget* parent) : QWidget(parent) {
  setObjectName("lblMenu");
  setMouseTracking(true);
  setAttribute(Qt::WA_OpaquePaintEvent);
}

void MenuEntries::add(Entry entry) {
  entries_.push_back(std::move(entry));
}

void MenuEntries::setLateTitles(std::function<QString(int index)> titles) {
  lateTitles_ = std::move(titles);
}

const QString& MenuEntries::title(int index) {
  QString& title = entries_[static_cast<std::size_t>(index)].title;
  if (title.isNull() && lateTitles_) title = lateTitles_(index);
  return title;
}

// Measuring a whole text costs microseconds, which ten thousand long captions would make
// noticeable; adding up the remembered widths of its characters costs next to nothing.
int MenuEntries::captionWidth(const QString& title, int widest) {
  double width = 1;  // characters side by side may stand apart by fractions of a pixel
  for (const QChar character : title) {
    auto known = advances_.constFind(character);
    if (known == advances_.constEnd())
      known = advances_.insert(character, QFontMetricsF(font()).horizontalAdvance(character));
    width += *known;
    if (width >= widest) return widest;
  }
  return qCeil(width);
}

QSize MenuEntries::measure(int widest) {
  ensurePolished();
  advances_.clear();
  rowHeight_ = fontMetrics().height() + 2 * kRowMargin;
  int width = lateTitles_ ? widest : qMin(pixels(kDesignWidth), widest);
  int top = entries_.empty() ? 0 : entries_.front().space;
  for (Entry& entry : entries_) {
    entry.top = top;
    top += rowHeight_ + entry.space;
    width = qMax(width, captionWidth(entry.title, widest) + 2 * (entry.space + kCaptionMargin));
  }
  return QSize(qMin(width, widest), contentHeight());
}

int MenuEntries::contentHeight() const {
  if (entries_.empty()) return 0;
  return entries_.back().top + rowHeight_ + entries_.back().space;
}

void MenuEntries::setCurrent(int index) {
  current_ = index;
  sayCurrent();
  scrollToCurrent();
  update();
}

// For readers of the screen: what is painted tells them nothing.
void MenuEntries::sayCurrent() {
  if (isVisible()) setAccessibleName(title(current_));
}

void MenuEntries::scrollToCurrent() {
  const Entry& shown = entry(current_);
  const int lowest = shown.top + rowHeight_ + shown.space - height();
  scrollTo(std::clamp(offset_, qMin(lowest, shown.top - shown.space), shown.top - shown.space));
}

void MenuEntries::scrollTo(int offset) {
  offset_ = std::clamp(offset, 0, qMax(0, contentHeight() - height()));
  update();
}

/// The first entry that ends below a height of the content.
int MenuEntries::indexBelow(int y) const {
  const auto endsAbove = [this](const Entry& entry, int limit) {
    return entry.top + rowHeight_ <= limit;
  };
  const auto found = std::lower_bound(entries_.begin(), entries_.end(), y, endsAbove);
  return static_cast<int>(found - entries_.begin());
}

int MenuEntries::indexAt(QPoint position) const {
  const int y = position.y() + offset_;
  const int index = indexBelow(y);
  const bool hit = rect().contains(position) && index < count() && entry(index).top <= y;
  return hit ? index : -1;
}

void MenuEntries::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), colours.back);
  for (int index = indexBelow(offset_); index < count(); ++index) {
    if (entry(index).top >= offset_ + height()) break;
    paintEntry(painter, index);
  }
  if (contentHeight() > height()) paintScrollMark(painter);
}

void MenuEntries::paintEntry(QPainter& painter, int index) {
  const Entry& shown = entry(index);
  const bool active = index == current_;
  const QRect row(shown.space, shown.top - offset_, width() - 2 * shown.space, rowHeight_);
  if (active) painter.fillRect(row, colours.activeBack);
  painter.setPen(active ? colours.activeFore : colours.fore);
  const QRect caption = row.adjusted(kCaptionMargin, 0, -kCaptionMargin, 0);
  const int flags = Qt::TextSingleLine | Qt::AlignVCenter | static_cast<int>(shown.alignment);
  painter.drawText(caption, flags,
                   fontMetrics().elidedText(title(index), Qt::ElideRight, caption.width()));
}

/// How much of the menu shows, and which part.
void MenuEntries::paintScrollMark(QPainter& painter) const {
  const double scale = static_cast<double>(height()) / contentHeight();
  const int length = qMax(24, qRound(height() * scale));
  const int hidden = contentHeight() - height();
  const int top = qRound(static_cast<double>(height() - length) * offset_ / hidden);
  painter.fillRect(width() - kScrollMarkWidth, top, kScrollMarkWidth, length, colours.activeBack);
}

void MenuEntries::showEvent(QShowEvent* event) {
  pointer_ = QCursor::pos();
  pressed_ = -1;
  QWidget::showEvent(event);
  sayCurrent();
}

// A pointer that merely lies where the menu comes up or scrolls along must not take the highlight
// from the keyboard.
void MenuEntries::mouseMoveEvent(QMouseEvent* event) {
  const QPoint now = event->globalPosition().toPoint();
  if (now == pointer_) return;
  pointer_ = now;
  const int index = indexAt(event->position().toPoint());
  if (index >= 0 && index != current_) emit pointedAt(index);
}

void MenuEntries::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return event->ignore();
  pressed_ = indexAt(event->position().toPoint());
}

void MenuEntries::mouseReleaseEvent(QMouseEvent* event) {
  const int pressed = pressed_;
  pressed_ = -1;
  if (pressed >= 0 && pressed == indexAt(event->position().toPoint())) emit clicked(pressed);
}

void MenuEntries::wheelEvent(QWheelEvent* event) {
  constexpr int kNotch = 120;  // eighths of a degree: one step of an ordinary wheel
  scrollTo(offset_ - event->angleDelta().y() * kWheelRows * rowHeight_ / kNotch);
}
