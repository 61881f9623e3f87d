#pragma once

#include <QAbstractTableModel>
#include <vector>

#include "app/clsQk.h"

/// The quick keys as the keyboard dialog edits them, in file order: key code, item code, key name.
class QuickKeyModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  enum Column { kKeyCode, kItemCode, kKeyName, kColumns };

  explicit QuickKeyModel(std::vector<clsQk> quickKeys, QObject* parent = nullptr);

  const std::vector<clsQk>& quickKeys() const { return quickKeys_; }
  bool contains(int code) const;
  void append(clsQk quickKey);
  /// Every quick key of this code gets the item; none: nothing changes.
  void change(int code, const std::string& item);
  /// Removes the first quick key of this code, if there is one.
  void removeFirst(int code);
  /// Quick keys on one of these keys never fire on the sale screen, and are shown in red.
  void setFunctionKeys(std::vector<int> codes);
  bool usesFunctionKey() const;

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  bool isFunctionKey(int code) const;
  QString cell(const clsQk& quickKey, int column) const;

  std::vector<clsQk> quickKeys_;
  std::vector<int> functionKeys_;
};
