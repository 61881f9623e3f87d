#include "reports/DayModel.h"

#include <utility>

#include "app/TenderTexts.h"
#include "base/NumberText.h"
#include "platform/QtText.h"

DayModel::DayModel(std::vector<const TenderKind*> tenders, QObject* parent)
    : QAbstractTableModel(parent), tenders_(std::move(tenders)) {}

void DayModel::show(ClsDayStat::Sells_t bills, const QString& operatorName) {
  beginResetModel();
  bills_ = std::move(bills);
  operatorName_ = operatorName;
  endResetModel();
}

int DayModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(bills_.size());
}

int DayModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : kColumns + static_cast<int>(tenders_.size());
}

QString DayModel::text(const ClsSell& bill, int column) const {
  switch (column) {
    case kBillNo:
      return QString::number(bill.BillNo());
    case kAmount:
      return qtText(twoDecimals(bill.Amount()));
    case kQuantity:
      return qtText(generalNumber(bill.Quantity()));
    case kTime:
      return qtText(generalText(bill.SellTime()));
    case kOperator:
      return operatorName_;
    default:
      return qtText(twoDecimals(bill.Tendered(tender(column).tender)));
  }
}

QVariant DayModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  if (role == Qt::DisplayRole)
    return text(*bills_[static_cast<std::size_t>(index.row())], index.column());
  if (role == Qt::TextAlignmentRole && isFigure(index.column()))
    return int(Qt::AlignRight | Qt::AlignVCenter);
  return {};
}

QVariant DayModel::headerData(int section, Qt::Orientation orientation, int role) const {
  const QString headers[kColumns] = {tr("流水号"), tr("金额"), tr("商品数量"), tr("时间"),
                                     tr("收银员")};
  if (orientation != Qt::Horizontal || section < 0 || section >= columnCount()) return {};
  if (role == Qt::DisplayRole)
    return section < kColumns ? headers[section] : tenderName(tender(section));
  if (role == Qt::TextAlignmentRole && isFigure(section))
    return int(Qt::AlignRight | Qt::AlignVCenter);
  return {};
}
