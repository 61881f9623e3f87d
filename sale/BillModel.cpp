#include "sale/BillModel.h"

#include <algorithm>
#include <array>

#include "platform/QtText.h"
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
  return int((BillColumns::isFigure(column) ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
}

}  // namespace

void BillModel::show(std::span<const BillRow> rows) {
  const std::size_t before = shown_.size();
  for (std::size_t row = 0; row < std::min(before, rows.size()); ++row) {
    if (shown_[row].cells == rows[row].cells) continue;
    shown_[row].cells = rows[row].cells;
    const int changed = static_cast<int>(row);
    emit dataChanged(index(changed, 0), index(changed, BillRow::kColumns - 1));
  }
  if (rows.size() > before) {
    beginInsertRows({}, static_cast<int>(before), static_cast<int>(rows.size()) - 1);
    shown_.insert(shown_.end(), rows.begin() + static_cast<std::ptrdiff_t>(before), rows.end());
    endInsertRows();
  } else if (rows.size() < before) {
    beginRemoveRows({}, static_cast<int>(rows.size()), static_cast<int>(before) - 1);
    shown_.resize(rows.size());
    endRemoveRows();
  }
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
    return qtText(row.cells[static_cast<std::size_t>(index.column())]);
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
