#pragma once

#include <QAbstractTableModel>

#include "saleslib/ClsDayStat.h"

/// An operator's bills of a day for the screen, one row per bill.
class DayModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  /// The kinds of payment with a column of their own.
  DayModel(std::vector<const TenderKind*> tenders, QObject* parent);
  void show(ClsDayStat::Sells_t bills, const QString& operatorName);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  /// The kinds of payment follow.
  enum Column { kBillNo, kAmount, kQuantity, kTime, kOperator, kColumns };
  QString text(const ClsSell& bill, int column) const;
  static bool isFigure(int column) { return column <= kQuantity || column >= kColumns; }
  const TenderKind& tender(int column) const {
    return *tenders_[static_cast<std::size_t>(column - kColumns)];
  }

  std::vector<const TenderKind*> tenders_;
  ClsDayStat::Sells_t bills_;
  QString operatorName_;
};
