#include "settings/QuickKeyModel.h"

#include <QColor>
#include <algorithm>
#include <utility>

#include "platform/KeyName.h"
#include "platform/QtText.h"

QuickKeyModel::QuickKeyModel(std::vector<clsQk> quickKeys, QObject* parent)
    : QAbstractTableModel(parent), quickKeys_(std::move(quickKeys)) {}

bool QuickKeyModel::contains(int code) const {
  return std::ranges::find(quickKeys_, code, &clsQk::QK_int) != quickKeys_.end();
}

void QuickKeyModel::append(clsQk quickKey) {
  const int row = rowCount();
  beginInsertRows({}, row, row);
  quickKeys_.push_back(std::move(quickKey));
  endInsertRows();
}

void QuickKeyModel::change(int code, const std::string& item) {
  for (int row = 0; row < rowCount(); ++row) {
    clsQk& quickKey = quickKeys_[static_cast<std::size_t>(row)];
    if (quickKey.QK_int != code) continue;
    quickKey.QK_Bm = item;
    emit dataChanged(index(row, kItemCode), index(row, kItemCode));
  }
}

void QuickKeyModel::removeFirst(int code) {
  const auto found = std::ranges::find(quickKeys_, code, &clsQk::QK_int);
  if (found == quickKeys_.end()) return;
  const int row = static_cast<int>(found - quickKeys_.begin());
  beginRemoveRows({}, row, row);
  quickKeys_.erase(found);
  endRemoveRows();
}

void QuickKeyModel::setFunctionKeys(std::vector<int> codes) {
  functionKeys_ = std::move(codes);
  if (rowCount() > 0) emit dataChanged(index(0, 0), index(rowCount() - 1, kColumns - 1));
}

bool QuickKeyModel::usesFunctionKey() const {
  return std::ranges::any_of(quickKeys_,
                             [this](const clsQk& each) { return isFunctionKey(each.QK_int); });
}

int QuickKeyModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(quickKeys_.size());
}

int QuickKeyModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : kColumns;
}

QVariant QuickKeyModel::data(const QModelIndex& index, int role) const {
  const clsQk& quickKey = quickKeys_[static_cast<std::size_t>(index.row())];
  if (role == Qt::DisplayRole) return cell(quickKey, index.column());
  if (role == Qt::ForegroundRole && isFunctionKey(quickKey.QK_int)) return QColor(Qt::red).darker();
  return {};
}

QVariant QuickKeyModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (role != Qt::DisplayRole || orientation != Qt::Horizontal) return {};
  switch (section) {
    case kKeyCode:
      return tr("键值");
    case kItemCode:
      return tr("商品编码");
    default:
      return tr("按键");
  }
}

bool QuickKeyModel::isFunctionKey(int code) const {
  return std::ranges::find(functionKeys_, code) != functionKeys_.end();
}

QString QuickKeyModel::cell(const clsQk& quickKey, int column) const {
  switch (column) {
    case kKeyCode:
      return QString::number(quickKey.QK_int);
    case kItemCode:
      return qtText(quickKey.QK_Bm);
    default:
      return keyName(quickKey.QK_int);
  }
}
