#pragma once

#include <QAbstractTableModel>
#include <vector>

#include "sale/SalePicture.h"

/// The bill's rows for the list view, as they were shown last.
class BillModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  using QAbstractTableModel::QAbstractTableModel;
  /// Shows these rows: the view is told which of them are others than before.
  void show(std::span<const BillRow> rows);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  /// Role of a header: "edit" for a column whose cells the input line can be placed on.
  static constexpr int kTagRole = Qt::UserRole;

 private:
  std::vector<BillRow> shown_;
};
