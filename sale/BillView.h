#pragma once

#include <QCache>
#include <QPixmap>
#include <QTableView>

/// The bill's list, made for a bill that grows by a line at every key press: only rows that change
/// are painted again, and rows that merely move are painted from pictures that the list keeps,
/// since text is what costs most. Rows are of one height. Cells hold one line of text; one that is
/// wider than its column is cut with "...".
class BillView : public QTableView {
  Q_OBJECT

 public:
  explicit BillView(QWidget* parent = nullptr);

  void setSelectionModel(QItemSelectionModel* selection) override;
  void doItemsLayout() override;

 protected:
  void rowsInserted(const QModelIndex& parent, int first, int last) override;
  void rowsAboutToBeRemoved(const QModelIndex& parent, int first, int last) override;
  void paintEvent(QPaintEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  struct Look {
    QPalette::ColorRole back, text;
  };

  void updateFrom(int row);
  void paintRow(QPainter& painter, int row);
  void paintRest(QPainter& painter);
  QPixmap picture(int row, const Look& look) const;
  void paintCell(QPainter& painter, const QRect& cell, const QModelIndex& index) const;
  QString texts(int row) const;

  QCache<QString, QPixmap> pictures_;  ///< of rows that are not selected, by what they show
};
