#include "sale/BillView.h"

#include <QHeaderView>
#include <QItemSelectionModel>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>

namespace {

constexpr int kMostPictures = 32;  // a screen of rows; some 100 KB each
constexpr QChar kSeparator(0x1F);

}  // namespace

BillView::BillView(QWidget* parent) : QTableView(parent), pictures_(kMostPictures) {
  connect(horizontalHeader(), &QHeaderView::sectionResized, this, [this] { pictures_.clear(); });
  connect(verticalHeader(), &QHeaderView::sectionResized, this, [this] { pictures_.clear(); });
  viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
}

// The headings do not follow the selection: they would be painted again at each of its moves.
void BillView::setSelectionModel(QItemSelectionModel* selection) {
  QTableView::setSelectionModel(selection);
  if (model() == nullptr) return;
  horizontalHeader()->setSelectionModel(new QItemSelectionModel(model(), selection));
}

// Other colours or another font.
void BillView::changeEvent(QEvent* event) {
  pictures_.clear();
  QTableView::changeEvent(event);
}

// As the base class does it, but that what is painted already stays: another number of rows moves
// none of them.
void BillView::doItemsLayout() {
  updateGeometries();
  verticalHeader()->setOffset(verticalScrollBar()->value());
  verticalHeader()->setUpdatesEnabled(true);
}

void BillView::updateFrom(int row) {
  const int top = row * verticalHeader()->defaultSectionSize() - verticalOffset();
  viewport()->update(0, top, viewport()->width(), viewport()->height() - top);
}

void BillView::rowsInserted(const QModelIndex& parent, int first, int last) {
  QTableView::rowsInserted(parent, first, last);
  updateFrom(first);
}

void BillView::rowsAboutToBeRemoved(const QModelIndex& parent, int first, int last) {
  QTableView::rowsAboutToBeRemoved(parent, first, last);
  updateFrom(first);
}

void BillView::paintEvent(QPaintEvent* event) {
  QPainter painter(viewport());
  const int rows = model() == nullptr ? 0 : model()->rowCount();
  const int last = rowAt(event->rect().bottom());
  const int end = last < 0 ? rows : last + 1;
  for (int row = std::max(rowAt(event->rect().top()), 0); row < end; ++row) paintRow(painter, row);
  if (last < 0) paintRest(painter);
}

/// The room behind the last row.
void BillView::paintRest(QPainter& painter) {
  const int top = verticalHeader()->length() - verticalOffset();
  painter.fillRect(0, top, viewport()->width(), viewport()->height() - top, palette().base());
}

void BillView::paintRow(QPainter& painter, int row) {
  const int top = rowViewportPosition(row);
  if (row == currentIndex().row()) {
    return painter.drawPixmap(0, top,
                              picture(row, {QPalette::Highlight, QPalette::HighlightedText}));
  }
  const bool odd = row % 2 == 1;
  const QString shown = texts(row) + (odd ? "1" : "0");
  QPixmap* known = pictures_.object(shown);
  if (known == nullptr || known->width() != viewport()->width()) {
    const auto back = odd ? QPalette::AlternateBase : QPalette::Base;
    known = new QPixmap(picture(row, {back, QPalette::Text}));
    pictures_.insert(shown, known);
  }
  painter.drawPixmap(0, top, *known);
}

QPixmap BillView::picture(int row, const Look& look) const {
  QPixmap made(viewport()->width(), rowHeight(row));
  made.fill(palette().color(look.back));
  QPainter painter(&made);
  painter.setFont(font());
  painter.setPen(palette().color(look.text));
  for (int column = 0; column < model()->columnCount(); ++column) {
    const QRect cell(columnViewportPosition(column), 0, columnWidth(column), made.height());
    paintCell(painter, cell, model()->index(row, column));
  }
  return made;
}

void BillView::paintCell(QPainter& painter, const QRect& cell, const QModelIndex& index) const {
  const QString text = index.data().toString();
  if (text.isEmpty()) return;
  const int padding = fontInfo().pixelSize() / 3;
  const QRect room = cell.adjusted(padding, 0, -padding, 0);
  painter.drawText(room, index.data(Qt::TextAlignmentRole).toInt() | Qt::TextSingleLine,
                   fontMetrics().elidedText(text, Qt::ElideRight, room.width()));
}

QString BillView::texts(int row) const {
  QString all;
  for (int column = 0; column < model()->columnCount(); ++column) {
    all += model()->index(row, column).data().toString() + kSeparator;
  }
  return all;
}
