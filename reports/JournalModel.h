#pragma once

#include <QAbstractTableModel>
#include <array>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

struct JournalEntry;

/// Entries of the journal for the screen, one row each.
class JournalModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  /// An entry as it is shown, in the order of the columns.
  enum Column { kNumber, kTime, kOperator, kKind, kTouches, kDetails, kColumns };
  using Shown = std::array<QString, kColumns>;
  /// `names` are the operators', by number.
  static Shown shown(const JournalEntry& entry, const std::map<std::int64_t, std::string>& names);

  using QAbstractTableModel::QAbstractTableModel;
  void show(std::vector<Shown> entries);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  std::vector<Shown> entries_;
};
