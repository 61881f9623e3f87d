#include "returns/ReturnLines.h"

#include "base/NumberText.h"
#include "platform/QtText.h"
#include "saleslib/ClsSell.h"

void ReturnLines::show(const ClsSell* bill) {
  beginResetModel();
  bill_ = bill;
  endResetModel();
}

std::int32_t ReturnLines::lineId(int row) const {
  const bool there = row >= 0 && row < rowCount();
  return there ? bill_->Items()[static_cast<std::size_t>(row)]->Id() : 0;
}

int ReturnLines::rowCount(const QModelIndex& parent) const {
  return bill_ == nullptr || parent.isValid() ? 0 : static_cast<int>(bill_->Items().size());
}

int ReturnLines::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : kColumns;
}

QVariant ReturnLines::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  if (role == Qt::DisplayRole) return cell(index.row(), index.column());
  if (role == Qt::TextAlignmentRole && index.column() >= kPrice) {
    return QVariant(Qt::AlignRight | Qt::AlignVCenter);
  }
  return {};
}

QString ReturnLines::cell(int row, int column) const {
  const ClsSellItem& line = *bill_->Items()[static_cast<std::size_t>(row)];
  switch (column) {
    case kCode:
      return qtText(line.EntryCode());
    case kName:
      return qtText(line.SpName());
    case kPrice:
      return qtText(twoDecimals(line.Price()));
    case kQuantity:
      return qtText(generalNumber(line.Quantity()));
    case kDiscount:
      return qtText(generalNumber(line.Discount()));
    case kMoney:
      return qtText(twoDecimals(line.Money()));
    default:
      return QString::number(line.Id());
  }
}

QVariant ReturnLines::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
  const QString titles[] = {tr("商品编码"), tr("商品名称"), tr("销售单价"), tr("数量"),
                            tr("折扣"),     tr("合计"),     QString()};
  return titles[section];
}
