#pragma once

#include <QAbstractTableModel>
#include <QStringList>
#include <functional>

/// A list of texts that are worked out when they are shown.
class ListModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  using Cell = std::function<QString(int row, int column)>;

  /// From column `firstFigure` on the cells are figures and stand on the right.
  ListModel(QStringList titles, int firstFigure, QObject* parent);
  /// Shows so many rows; `cell` gives their texts until the next call.
  void show(int rows, Cell cell);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  QVariant alignment(int column) const;

  QStringList titles_;
  int firstFigure_;
  int rows_ = 0;
  Cell cell_;
};
