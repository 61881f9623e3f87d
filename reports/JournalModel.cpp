#include "reports/JournalModel.h"

#include <utility>

#include "platform/QtText.h"
#include "saleslib/JournalEntry.h"
#include "saleslib/JournalTexts.h"

JournalModel::Shown JournalModel::shown(const JournalEntry& entry,
                                        const std::map<std::int64_t, std::string>& names) {
  const auto person = [&names](const std::optional<std::int64_t>& id) -> QString {
    if (!id) return {};
    const auto known = names.find(*id);
    return known == names.end() ? QString::number(*id) : qtText(known->second);
  };
  QString who = person(entry.operatorId);
  if (entry.approver) who = tr("%1，%2 批准").arg(who, person(entry.approver));
  return {QString::number(entry.seq), qtText(entry.time),    who,
          qtText(entryName(entry)),   qtText(entry.touches), qtText(entryDetails(entry))};
}

void JournalModel::show(std::vector<Shown> entries) {
  beginResetModel();
  entries_ = std::move(entries);
  endResetModel();
}

int JournalModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(entries_.size());
}

int JournalModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : kColumns;
}

QVariant JournalModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const auto column = static_cast<std::size_t>(index.column());
  if (role == Qt::DisplayRole || role == Qt::ToolTipRole)
    return entries_[static_cast<std::size_t>(index.row())].at(column);
  if (role == Qt::TextAlignmentRole && index.column() == kNumber)
    return int(Qt::AlignRight | Qt::AlignVCenter);
  return {};
}

QVariant JournalModel::headerData(int section, Qt::Orientation orientation, int role) const {
  const QString headers[kColumns] = {tr("号码"), tr("时间"), tr("操作员"),
                                     tr("种类"), tr("对象"), tr("内容")};
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section >= kColumns) return {};
  return headers[section];
}
