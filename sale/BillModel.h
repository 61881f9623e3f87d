#pragma once

#include <QAbstractTableModel>

struct SaleState;

/// The bill's rows for the list view; draws the state, holds nothing of it.
class BillModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  explicit BillModel(const SaleState& state, QObject* parent = nullptr);
  /// The state's rows or its selection changed: the view draws them again. What it costs does not
  /// grow with the bill.
  void rowsChanged();

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  /// Role of a header: "edit" for a column whose cells the input line can be placed on.
  static constexpr int kTagRole = Qt::UserRole;

 private:
  const SaleState& state_;
  int shownRows_ = 0;
};
