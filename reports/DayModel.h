#pragma once

#include <QAbstractTableModel>

#include "saleslib/ClsDayStat.h"

/// An operator's bills of a day for the screen, one row per bill.
class DayModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  explicit DayModel(QObject* parent = nullptr);
  void show(ClsDayStat::Sells_t bills, const QString& operatorName);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  enum Column { kBillNo, kAmount, kQuantity, kTime, kOperator, kColumns };
  QString text(const ClsSell& bill, int column) const;

  ClsDayStat::Sells_t bills_;
  QString operatorName_;
};
