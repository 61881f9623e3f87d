#pragma once

#include <QTableView>

#include "sale/BillColumns.h"
#include "sale/CharacterPictures.h"

/// The bill's list, made for a bill that grows by a line at every key press: a change lays nothing
/// out again and paints only the cells that it touches. The row of the current cell is highlighted
/// and the cell itself framed; there is no selection, and never the focus. Rows are of one height
/// and none is shown in part. Cells hold one line of text: one that is wider than its column ends
/// with "…", a figure is drawn smaller.
class BillView : public QTableView {
  Q_OBJECT

 public:
  explicit BillView(QWidget* parent = nullptr);

  /// Makes that cell the current one and brings it into view; its frame goes to the end of the
  /// column `last`. It is the view's own: the item views' current index moves with the pointer.
  void showCell(int row, int column, int last);
  /// Brings the current cell back into view when it was scrolled away.
  void showCurrent() { scrollToRow(row_); }
  int currentRow() const { return row_; }
  /// Where the current cell is within the viewport, without its frame.
  QRect insideOfCurrentCell() const;
  /// Paints what has changed in the list, and what lies in it, before it returns.
  void paintNow();
  /// Divides the height into whole rows, at least of that height, and sets what they show in type
  /// of their size; what is left over goes to the headings, which need that much at least.
  void divideRows(int leastHeight, int leastHeading);

  void setModel(QAbstractItemModel* shown) override;
  void doItemsLayout() override;

 protected:
  void dataChanged(const QModelIndex& topLeft, const QModelIndex& bottomRight,
                   const QList<int>& roles) override;
  void rowsInserted(const QModelIndex& parent, int first, int last) override;
  void rowsAboutToBeRemoved(const QModelIndex& parent, int first, int last) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  bool viewportEvent(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  int rowsShown() const;
  void makeRoomFor(int first, int last);
  void applyWidths();
  void setType(int rowHeight);
  void scrollToRow(int row);
  void updateRow(int row);
  QRect rowsRect(int first, int last) const;
  QRect cellRect(int row, int column) const;
  void paintRest(QPainter& painter, const QRect& part);
  void paintRow(QPainter& painter, int row, const QRegion& part);
  void paintCell(QPainter& painter, const QRect& room, const QModelIndex& index);
  void paintSmaller(QPainter& painter, const QRect& room, const QString& text);
  QRect currentCell() const;

  CharacterPictures characters_;
  BillColumns columns_;
  int row_ = -1, column_ = -1, last_ = -1;  ///< of the current cell
};
