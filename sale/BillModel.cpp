#include "sale/BillModel.h"

#include <algorithm>
#include <array>

#include "sale/BillColumns.h"

namespace {

struct Column {
  const char* header;
  bool editable = false;
};

const std::array<Column, BillRow::kColumns> kColumns{{
    {QT_TRANSLATE_NOOP("BillModel", "序号"), true},
    {QT_TRANSLATE_NOOP("BillModel", "条码货号")},
    {QT_TRANSLATE_NOOP("BillModel", "商品名称")},
    {QT_TRANSLATE_NOOP("BillModel", "单价")},
    {QT_TRANSLATE_NOOP("BillModel", "数量"), true},
    {QT_TRANSLATE_NOOP("BillModel", "折扣"), true},
    {QT_TRANSLATE_NOOP("BillModel", "金额")},
    {QT_TRANSLATE_NOOP("BillModel", "现有库存")},
    {QT_TRANSLATE_NOOP("BillModel", "产地")},
    {QT_TRANSLATE_NOOP("BillModel", "单位")},
    {QT_TRANSLATE_NOOP("BillModel", "编码")},
}};

int alignment(int column) {
  return (BillColumns::isFigure(column) ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter;
}

}  // namespace

BillModel::BillModel(const SaleState& state, QObject* parent)
    : QAbstractTableModel(parent), state_(state), shown_(state.rows) {}

void BillModel::rowsChanged() {
  const std::size_t common = std::min(shown_.size(), state_.rows.size());
  for (std::size_t row = 0; row < common; ++row) showChanges(row);
  const int before = rowCount();
  const int rows = static_cast<int>(state_.rows.size());
  if (rows > before) {
    beginInsertRows({}, before, rows - 1);
    shown_.insert(shown_.end(), state_.rows.begin() + before, state_.rows.end());
    endInsertRows();
  } else if (rows < before) {
    beginRemoveRows({}, rows, before - 1);
    shown_.resize(state_.rows.size());
    endRemoveRows();
  }
}

void BillModel::showChanges(std::size_t row) {
  if (shown_[row].cells == state_.rows[row].cells) return;
  shown_[row].cells = state_.rows[row].cells;
  const int changed = static_cast<int>(row);
  emit dataChanged(index(changed, 0), index(changed, BillRow::kColumns - 1));
}

int BillModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(shown_.size());
}

int BillModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : BillRow::kColumns;
}

QVariant BillModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  if (role == Qt::DisplayRole) {
    const BillRow& row = shown_[static_cast<std::size_t>(index.row())];
    return QString::fromStdString(row.cells[static_cast<std::size_t>(index.column())]);
  }
  if (role == Qt::TextAlignmentRole) return alignment(index.column());
  return {};
}

QVariant BillModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || section < 0 || section >= BillRow::kColumns) return {};
  const Column& column = kColumns[static_cast<std::size_t>(section)];
  if (role == Qt::DisplayRole) return tr(column.header);
  if (role == Qt::TextAlignmentRole) return alignment(section);
  if (role == kTagRole && column.editable) return QStringLiteral("edit");
  return {};
}
