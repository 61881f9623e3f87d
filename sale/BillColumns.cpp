#include "sale/BillColumns.h"

#include <QFontMetrics>
#include <QString>
#include <algorithm>
#include <numeric>

namespace {

// Usual widths in tenths of the type size; the name takes the rest. The code's column holds the
// thirteen digits of a barcode.
constexpr std::array<int, BillRow::kColumns> kUsual = {28, 82, 0, 46, 36, 34, 52, 48, 40, 29, 46};
constexpr int kLeastName = 55;
constexpr int kLeastOrigin = 27;
// The input line lies on the figure and needs room for its cursor.
constexpr int kCursor = 2;

}  // namespace

int textWidth(const QFontMetrics& type, const QString& text) {
  return std::accumulate(text.begin(), text.end(), 0, [&type](int width, QChar each) {
    return width + type.horizontalAdvance(each);
  });
}

bool BillColumns::isFigure(int column) {
  return column >= BillRow::kPrice && column <= BillRow::kStock;
}

void BillColumns::setRoom(int width, const QFontMetrics& type) {
  room_ = width;
  em_ = type.horizontalAdvance(QChar(0x56FD));
  padding_ = type.height() / 4;
  widest_ = type.horizontalAdvance('0');
  for (std::size_t i = 0; i < usual_.size(); ++i) usual_[i] = kUsual[i] * em_ / 10;
  needed_.fill(0);
  share();
}

// Nothing of a figure is wider than a digit: most need not be measured.
bool BillColumns::makeRoomFor(int column, const QString& text, const QFontMetrics& type) {
  const auto at = static_cast<std::size_t>(column);
  const int around = 2 * padding_ + kCursor;
  int needed = static_cast<int>(text.size()) * widest_ + around;
  if (needed <= std::max(usual_[at], needed_[at])) return false;
  needed = textWidth(type, text) + around;
  if (needed <= std::max(usual_[at], needed_[at])) return false;
  needed_[at] = needed;
  share();
  return true;
}

bool BillColumns::forgetFigures() {
  const Widths before = widths_;
  needed_.fill(0);
  share();
  return widths_ != before;
}

void BillColumns::share() {
  widths_ = usual_;
  const int name = room_ - std::accumulate(usual_.begin(), usual_.end(), 0);
  const int fromName = std::max(0, name - kLeastName * em_ / 10);
  const int fromOrigin = usual_[BillRow::kOrigin] - kLeastOrigin * em_ / 10;
  int wanted = 0;
  for (std::size_t i = 0; i < needed_.size(); ++i) wanted += std::max(0, needed_[i] - usual_[i]);
  const int given = std::min(wanted, fromName + fromOrigin);
  for (std::size_t i = 0; i < needed_.size() && wanted > 0; ++i) {
    widths_[i] += std::max(0, needed_[i] - usual_[i]) * given / wanted;
  }
  widths_[BillRow::kOrigin] -= std::max(0, given - fromName);
  widths_[BillRow::kName] = 0;
  widths_[BillRow::kName] = room_ - std::accumulate(widths_.begin(), widths_.end(), 0);
}
