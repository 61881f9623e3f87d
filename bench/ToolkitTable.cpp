#include "bench/ToolkitTable.h"

#include <QHeaderView>
#include <utility>

#include "platform/QtText.h"

ToolkitTable::ToolkitTable(QSize size) {
  setObjectName("list");
  setAttribute(Qt::WA_ShowWithoutActivating);
  // Else the height of each of a million rows is kept, and summed up.
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  setModel(&model_);
  resize(size);
  show();
}

void ToolkitTable::fill(Texts rows) {
  model_.fill(std::move(rows));
}

void ToolkitTable::Model::fill(Texts rows) {
  beginResetModel();
  rows_ = std::move(rows);
  endResetModel();
}

int ToolkitTable::Model::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int ToolkitTable::Model::columnCount(const QModelIndex& parent) const {
  return parent.isValid() || rows_.empty() ? 0 : static_cast<int>(rows_.front().size());
}

QVariant ToolkitTable::Model::data(const QModelIndex& index, int role) const {
  if (role != Qt::DisplayRole) return {};
  const auto row = static_cast<std::size_t>(index.row());
  const auto column = static_cast<std::size_t>(index.column());
  return qtText(rows_[row][column]);
}
