#pragma once

#include <QAbstractTableModel>
#include <vector>

#include "checkout/SaleState.h"

/// The bill's rows for the list view, as they were when it was last told of a change.
class BillModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  explicit BillModel(const SaleState& state, QObject* parent = nullptr);
  /// The state's rows may have changed: the view is told which did.
  void rowsChanged();

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  /// Role of a header: "edit" for a column whose cells the input line can be placed on.
  static constexpr int kTagRole = Qt::UserRole;

 private:
  void showChanges(std::size_t row);

  const SaleState& state_;
  std::vector<BillRow> shown_;
};
