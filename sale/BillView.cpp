#include "sale/BillView.h"

#include <QHeaderView>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>
#include <QTextLayout>
#include <algorithm>

namespace {

constexpr int kFrame = 2;
constexpr int kFreeRows = 2;  // below the last line of a bill that has just moved up
constexpr QColor kFrameColour(0xd3, 0x54, 0x00);

bool isActivation(const QEvent& event) {
  return event.type() == QEvent::WindowActivate || event.type() == QEvent::WindowDeactivate;
}

/// In one line; gives its width.
double layOut(QTextLayout& text) {
  text.beginLayout();
  const QTextLine line = text.createLine();
  text.endLayout();
  return line.naturalTextWidth();
}

}  // namespace

BillView::BillView(QWidget* parent) : QTableView(parent) {
  setSelectionMode(QAbstractItemView::NoSelection);
  setFocusPolicy(Qt::NoFocus);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
  setCornerButtonEnabled(false);
  verticalHeader()->hide();
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  horizontalHeader()->setHighlightSections(false);
  horizontalHeader()->setSectionsClickable(false);
  connect(verticalScrollBar(), &QScrollBar::valueChanged, this, [this](int value) {
    verticalScrollBar()->setValue(value - value % verticalHeader()->defaultSectionSize());
  });
  // With a grid the base class marks rectangles that are a pixel too short.
  setShowGrid(false);
  viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
  horizontalHeader()->viewport()->installEventFilter(this);
}

// List and headings look the same in a window that is not the active one. The base classes paint
// them anew twice for every window that opens over this one.
bool BillView::eventFilter(QObject* watched, QEvent* event) {
  const bool heading = watched == horizontalHeader()->viewport();
  return (heading && isActivation(*event)) || QTableView::eventFilter(watched, event);
}

bool BillView::viewportEvent(QEvent* event) {
  return !isActivation(*event) && QTableView::viewportEvent(event);
}

void BillView::divideRows(int leastHeight, int leastHeading) {
  const int room = height() - 2 * frameWidth() - leastHeading;
  const int rows = std::max(1, room / leastHeight);
  const int rowHeight = std::max(1, room / rows);
  verticalHeader()->setDefaultSectionSize(rowHeight);
  horizontalHeader()->setFixedHeight(leastHeading + std::max(0, room - rows * rowHeight));
  setType(rowHeight);
  const int bar = verticalScrollBar()->sizeHint().width();
  columns_.setRoom(width() - 2 * frameWidth() - bar, fontMetrics());
  if (model() != nullptr) makeRoomFor(0, model()->rowCount() - 1);
  applyWidths();
}

// As large as the rows allow within the frame of the current cell. The input line has the same
// type, and its text stands where the cell's does.
void BillView::setType(int rowHeight) {
  constexpr int kMeasured = 100;
  constexpr int kMarginOfLineEdit = 2;
  QFont measured = font();
  measured.setPixelSize(kMeasured);
  const int size = (rowHeight - 2 * kFrame) * kMeasured / QFontMetrics(measured).height();
  measured.setPixelSize(size);
  const int padding = QFontMetrics(measured).height() / 4 - kFrame - kMarginOfLineEdit;
  // A font set by setFont would lose against the screen's style sheet.
  setStyleSheet(QStringLiteral("#lv, #t { font-size: %1px; } #t { padding: 0 %2px; }")
                    .arg(size)
                    .arg(padding));
  ensurePolished();
}

void BillView::makeRoomFor(int first, int last) {
  const QFontMetrics type = fontMetrics();
  bool changed = false;
  for (int row = first; row <= last; ++row) {
    for (int column = BillRow::kPrice; column <= BillRow::kStock; ++column) {
      const QString text = model()->index(row, column).data().toString();
      changed = columns_.makeRoomFor(column, text, type) || changed;
    }
  }
  if (changed) applyWidths();
}

void BillView::applyWidths() {
  for (int column = 0; column < BillRow::kColumns; ++column) {
    setColumnWidth(column, columns_.width(column));
  }
  viewport()->update();
}

void BillView::showCell(int row, int column, int last) {
  if (row == row_ + 1) {
    viewport()->update(rowsRect(row_, row));
  } else if (row != row_ || column != column_ || last != last_) {
    updateRow(row_);
    updateRow(row);
  }
  row_ = row;
  column_ = column;
  last_ = last;
  executeDelayedItemsLayout();
  scrollToRow(row);
}

int BillView::rowsShown() const {
  return std::max(1, viewport()->height() / verticalHeader()->defaultSectionSize());
}

// A bill that has filled the screen moves up by some rows at once: moving all that is painted at
// each line would cost as much as painting the line.
void BillView::scrollToRow(int row) {
  if (row < 0 || viewport()->rect().contains(rowsRect(row, row))) return;
  const bool above = rowsRect(row, row).top() < 0;
  const int first = above ? row : std::min(row, row + 1 + kFreeRows - rowsShown());
  verticalScrollBar()->setValue(first * verticalHeader()->defaultSectionSize());
}

QRect BillView::currentCell() const {
  return cellRect(row_, column_) | cellRect(row_, last_);
}

QRect BillView::insideOfCurrentCell() const {
  return currentCell().adjusted(kFrame, kFrame, -kFrame, -kFrame);
}

// One changed row brings all others with it.
void BillView::paintNow() {
  viewport()->repaint(rowsRect(row_, row_));
}

// As the base class does it, but that what is painted already stays, and so do the headings
// (another number of rows moves none of them), and that some rows may be free below the last.
void BillView::doItemsLayout() {
  const int height = verticalHeader()->defaultSectionSize();
  const int hidden = std::max(0, verticalHeader()->count() - rowsShown());
  verticalScrollBar()->setRange(0, hidden > 0 ? (hidden + kFreeRows) * height : 0);
  verticalScrollBar()->setPageStep(rowsShown() * height);
  verticalScrollBar()->setSingleStep(height);
  verticalHeader()->setOffset(verticalScrollBar()->value());
  verticalHeader()->setUpdatesEnabled(true);
}

QRect BillView::rowsRect(int first, int last) const {
  const int height = verticalHeader()->defaultSectionSize();
  return {0, first * height - verticalOffset(), viewport()->width(), (last - first + 1) * height};
}

void BillView::updateRow(int row) {
  if (row >= 0) viewport()->update(rowsRect(row, row));
}

void BillView::dataChanged(const QModelIndex& topLeft, const QModelIndex& bottomRight,
                           const QList<int>&) {
  makeRoomFor(topLeft.row(), bottomRight.row());
  viewport()->update(rowsRect(topLeft.row(), bottomRight.row()));
}

// The headings show no cell: they need not hear of each that changes.
void BillView::setModel(QAbstractItemModel* shown) {
  QTableView::setModel(shown);
  if (shown == nullptr) return;
  for (QHeaderView* heading : {horizontalHeader(), verticalHeader()}) {
    disconnect(shown, &QAbstractItemModel::dataChanged, heading, nullptr);
  }
}

// Rows below them move.
void BillView::rowsInserted(const QModelIndex& parent, int first, int last) {
  QTableView::rowsInserted(parent, first, last);
  makeRoomFor(first, last);
  viewport()->update(rowsRect(first, std::max(last, model()->rowCount() - 1)));
}

void BillView::rowsAboutToBeRemoved(const QModelIndex& parent, int first, int last) {
  QTableView::rowsAboutToBeRemoved(parent, first, last);
  if (first <= 1 && columns_.forgetFigures()) applyWidths();  // the entry row alone is left
  viewport()->update(rowsRect(first, std::max(last, model()->rowCount() - 1)));
}

QRect BillView::cellRect(int row, int column) const {
  const QRect whole = rowsRect(row, row);
  return {columnViewportPosition(column), whole.top(), columnWidth(column), whole.height()};
}

// The rectangle of the event is often the whole list, when a bill that fills the screen moves up.
void BillView::paintEvent(QPaintEvent* event) {
  QPainter painter(viewport());
  painter.setFont(font());
  const QRect part = event->rect();
  paintRest(painter, part);
  const int rows = model() == nullptr ? 0 : model()->rowCount();
  const int last = rowAt(part.bottom());
  const int end = last < 0 ? rows : last + 1;
  for (int row = std::max(rowAt(part.top()), 0); row < end; ++row) {
    if (event->region().intersects(rowsRect(row, row))) paintRow(painter, row, event->region());
  }
}

/// The room behind the last row.
void BillView::paintRest(QPainter& painter, const QRect& part) {
  const int end = verticalHeader()->length() - verticalOffset();
  const QRect rest(0, end, viewport()->width(), viewport()->height() - end);
  if (rest.intersects(part)) painter.fillRect(rest & part, palette().base());
}

void BillView::paintRow(QPainter& painter, int row, const QRegion& part) {
  const bool current = row == row_;
  const auto plain = row % 2 == 1 ? QPalette::AlternateBase : QPalette::Base;
  const QColor back = palette().color(current ? QPalette::Highlight : plain);
  painter.fillRect(rowsRect(row, row) & part.boundingRect(), back);
  painter.setPen(palette().color(current ? QPalette::HighlightedText : QPalette::Text));
  const int padding = columns_.padding();
  const bool framed = current && part.intersects(currentCell());
  if (framed) {
    painter.fillRect(currentCell(), kFrameColour);
    painter.fillRect(insideOfCurrentCell(), back);
  }
  for (int column = 0; column < model()->columnCount(); ++column) {
    const QRect cell = cellRect(row, column);
    if (!part.intersects(cell) || (current && column >= column_ && column <= last_)) continue;
    paintCell(painter, cell.adjusted(padding, 0, -padding, 0), model()->index(row, column));
  }
}

// Text is laid out once, for its width and for drawing.
void BillView::paintCell(QPainter& painter, const QRect& room, const QModelIndex& index) {
  const QString text = index.data().toString();
  if (text.isEmpty()) return;
  const bool right = index.data(Qt::TextAlignmentRole).toInt() & Qt::AlignRight;
  using Overlong = CharacterPictures::Overlong;
  const bool figure = BillColumns::isFigure(index.column());
  const Overlong overlong = figure ? Overlong::kRefuse : Overlong::kCut;
  if (characters_.draw(painter, room, right, text, overlong)) return;
  if (figure) return paintSmaller(painter, room, text);
  const QFontMetrics metrics = painter.fontMetrics();
  QTextLayout layout(text, painter.font());
  if (layOut(layout) > room.width()) {
    layout.setText(metrics.elidedText(text, Qt::ElideRight, room.width()));
    layOut(layout);
  }
  const double left = room.left();
  layout.draw(&painter, {left, room.top() + (room.height() - metrics.height()) / 2.0});
}

// The figure does not fit, though its column has all the room that there is.
void BillView::paintSmaller(QPainter& painter, const QRect& room, const QString& text) {
  QFont smaller = font();
  const int width = textWidth(painter.fontMetrics(), text);
  smaller.setPixelSize(std::max(1, smaller.pixelSize() * room.width() / width));
  painter.setFont(smaller);
  painter.drawText(room, Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine, text);
  painter.setFont(font());
}

// Other colours or another font.
void BillView::changeEvent(QEvent* event) {
  characters_.clear();
  QTableView::changeEvent(event);
}
