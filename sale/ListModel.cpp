#include "sale/ListModel.h"

#include <utility>

ListModel::ListModel(QStringList titles, int firstFigure, QObject* parent)
    : QAbstractTableModel(parent), titles_(std::move(titles)), firstFigure_(firstFigure) {}

void ListModel::show(int rows, Cell cell) {
  beginResetModel();
  rows_ = rows;
  cell_ = std::move(cell);
  endResetModel();
}

int ListModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : rows_;
}

int ListModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(titles_.size());
}

QVariant ListModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  if (role == Qt::DisplayRole) return cell_(index.row(), index.column());
  return role == Qt::TextAlignmentRole ? alignment(index.column()) : QVariant();
}

QVariant ListModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal) return {};
  if (role == Qt::DisplayRole) return titles_.value(section);
  return role == Qt::TextAlignmentRole ? alignment(section) : QVariant();
}

QVariant ListModel::alignment(int column) const {
  const auto side = column < firstFigure_ ? Qt::AlignLeft : Qt::AlignRight;
  return QVariant::fromValue(Qt::Alignment(side) | Qt::AlignVCenter);
}
