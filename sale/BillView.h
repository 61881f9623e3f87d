#pragma once

#include <QTableView>

#include "sale/CharacterPictures.h"

/// The bill's list, made for a bill that grows by a line at every key press: a change lays nothing
/// out again and paints only the cells that it touches. The row of the current cell is highlighted
/// and the cell itself framed; there is no selection. Rows are of one height. Cells hold one line
/// of text; one that is wider than its column is cut with "...".
class BillView : public QTableView {
  Q_OBJECT

 public:
  explicit BillView(QWidget* parent = nullptr);

  /// Makes that cell the current one and brings it into view. It is the view's own: the item
  /// views' current index moves with the pointer.
  void showCell(int row, int column);
  int currentRow() const { return row_; }
  /// Where the current cell is within the viewport, without its frame.
  QRect insideOfCurrentCell() const;
  /// Paints what has changed in the list, and what lies in it, before it returns.
  void paintNow();

  void setModel(QAbstractItemModel* shown) override;
  void doItemsLayout() override;

 protected:
  void dataChanged(const QModelIndex& topLeft, const QModelIndex& bottomRight,
                   const QList<int>& roles) override;
  void rowsInserted(const QModelIndex& parent, int first, int last) override;
  void rowsAboutToBeRemoved(const QModelIndex& parent, int first, int last) override;
  void paintEvent(QPaintEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  int rowsShown() const;
  void scrollToRow(int row);
  void updateRow(int row);
  QRect rowsRect(int first, int last) const;
  QRect cellRect(int row, int column) const;
  void paintRest(QPainter& painter, const QRect& part);
  void paintRow(QPainter& painter, int row, const QRegion& part);
  void paintCell(QPainter& painter, const QRect& room, const QModelIndex& index);

  CharacterPictures characters_;
  int row_ = -1, column_ = -1;
};
