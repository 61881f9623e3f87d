#pragma once

#include <QAbstractTableModel>
#include <cstdint>

class ClsSell;

/// The lines of a stored bill as a list, with each line's row id as a hidden last column.
class ReturnLines : public QAbstractTableModel {
  Q_OBJECT

 public:
  enum Column { kCode, kName, kPrice, kQuantity, kDiscount, kMoney, kLineId, kColumns };

  using QAbstractTableModel::QAbstractTableModel;

  /// Shows that bill's lines as they are now, or none. The bill outlives its being shown.
  void show(const ClsSell* bill);
  /// The line id of a row; 0 for a row that is not there.
  std::int32_t lineId(int row) const;

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  QString cell(int row, int column) const;

  const ClsSell* bill_ = nullptr;
};
