#include "sale/BillModel.h"

#include <array>

#include "checkout/SaleState.h"

namespace {

struct Column {
  const char* header;
  bool editable = false;
  bool figure = false;
};

const std::array<Column, BillRow::kColumns> kColumns{{
    {QT_TRANSLATE_NOOP("BillModel", "序号"), true, false},
    {QT_TRANSLATE_NOOP("BillModel", "条码货号")},
    {QT_TRANSLATE_NOOP("BillModel", "商品名称")},
    {QT_TRANSLATE_NOOP("BillModel", "单价"), false, true},
    {QT_TRANSLATE_NOOP("BillModel", "数量"), true, true},
    {QT_TRANSLATE_NOOP("BillModel", "折扣"), true, true},
    {QT_TRANSLATE_NOOP("BillModel", "金额"), false, true},
    {QT_TRANSLATE_NOOP("BillModel", "现有库存"), false, true},
    {QT_TRANSLATE_NOOP("BillModel", "产地")},
    {QT_TRANSLATE_NOOP("BillModel", "单位")},
    {QT_TRANSLATE_NOOP("BillModel", "编码")},
}};

QVariant alignment(const Column& column) {
  return QVariant::fromValue(Qt::Alignment(column.figure ? Qt::AlignRight : Qt::AlignLeft) |
                             Qt::AlignVCenter);
}

}  // namespace

BillModel::BillModel(const SaleState& state, QObject* parent)
    : QAbstractTableModel(parent), state_(state), shownRows_(static_cast<int>(state.rows.size())) {}

void BillModel::rowsChanged() {
  const int rows = static_cast<int>(state_.rows.size());
  if (rows > shownRows_) {
    beginInsertRows({}, shownRows_, rows - 1);
    shownRows_ = rows;
    endInsertRows();
  } else if (rows < shownRows_) {
    beginRemoveRows({}, rows, shownRows_ - 1);
    shownRows_ = rows;
    endRemoveRows();
  }
  // Only cells that show are painted again, however many are said to have changed.
  if (rows > 0) emit dataChanged(index(0, 0), index(rows - 1, BillRow::kColumns - 1));
}

int BillModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : shownRows_;
}

int BillModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : BillRow::kColumns;
}

// A row may be gone from the state a moment before the view is told.
QVariant BillModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.row() >= static_cast<int>(state_.rows.size())) return {};
  const auto column = static_cast<std::size_t>(index.column());
  if (role == Qt::DisplayRole) {
    return QString::fromStdString(state_.rows[static_cast<std::size_t>(index.row())].cells[column]);
  }
  if (role == Qt::TextAlignmentRole) return alignment(kColumns[column]);
  return {};
}

QVariant BillModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || section < 0 || section >= BillRow::kColumns) return {};
  const Column& column = kColumns[static_cast<std::size_t>(section)];
  if (role == Qt::DisplayRole) return tr(column.header);
  if (role == Qt::TextAlignmentRole) return alignment(column);
  if (role == kTagRole && column.editable) return QStringLiteral("edit");
  return {};
}
