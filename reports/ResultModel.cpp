#include "reports/ResultModel.h"

#include <QColor>
#include <utility>

#include "platform/QtText.h"

ResultModel::ResultModel(QObject* parent) : QAbstractTableModel(parent) {}

void ResultModel::begin() {
  beginResetModel();
  before_ = std::exchange(list_, std::make_shared<ResultList>());
  filling_ = true;
  endResetModel();
}

void ResultModel::append(const SoldPage& page) {
  if (!filling_) begin();
  if (page.lines.empty()) return list_->append(page);
  const int first = rowCount();
  beginInsertRows({}, first, first + static_cast<int>(page.lines.size()) - 1);
  list_->append(page);
  endInsertRows();
}

void ResultModel::complete() {
  if (!filling_) begin();
  const int last = rowCount();
  beginInsertRows({}, last, last);
  list_->complete();
  endInsertRows();
  filling_ = false;
  before_.reset();
  sortColumn_ = -1;
}

void ResultModel::restore() {
  if (!filling_) return;
  beginResetModel();
  filling_ = false;
  list_ = std::move(before_);
  endResetModel();
}

void ResultModel::sortBy(int column) {
  if (!list_ || filling_) return;
  descending_ = !descending_;
  emit layoutAboutToBeChanged();
  if (column == sortColumn_) {
    list_->reverse();
  } else {
    list_->sort(static_cast<ResultColumn>(column), descending_);
  }
  sortColumn_ = column;
  emit layoutChanged();
}

int ResultModel::rowCount(const QModelIndex& parent) const {
  return list_ && !parent.isValid() ? static_cast<int>(list_->rowCount()) : 0;
}

int ResultModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : kResultColumns;
}

QVariant ResultModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const auto row = static_cast<std::size_t>(index.row());
  const auto column = static_cast<ResultColumn>(index.column());
  if (role == Qt::DisplayRole) {
    const std::string text = list_->text(row, column);
    return list_->isTotals(row) ? tr(text.c_str()) : qtText(text);
  }
  if (role == Qt::ForegroundRole && list_->isTotals(row)) return QColor(Qt::red);
  if (role == Qt::TextAlignmentRole && resultColumns()[column].isNumber)
    return int(Qt::AlignRight | Qt::AlignVCenter);
  return {};
}

QVariant ResultModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal) return {};
  if (role == Qt::DisplayRole) return tr(resultColumns()[section].header);
  if (role == Qt::TextAlignmentRole && resultColumns()[section].isNumber)
    return int(Qt::AlignRight | Qt::AlignVCenter);
  return {};
}
