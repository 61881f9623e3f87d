#pragma once

#include <QAbstractTableModel>

struct SaleState;

/// The bill's rows for the list view; draws the state, holds nothing.
class BillModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  explicit BillModel(const SaleState& state, QObject* parent = nullptr);
  /// The state's rows changed: the view draws them again.
  void rowsChanged();

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  const SaleState& state_;
  int shownRows_ = 0;
};
