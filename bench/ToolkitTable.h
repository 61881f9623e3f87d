#pragma once

#include <QAbstractTableModel>
#include <QTableView>

#include "bench/BareEngine.h"

/// The toolkit's own table with texts in it, as it comes: what a list costs that does no more than
/// show them. Its name is "list".
class ToolkitTable : public QTableView {
 public:
  /// Shown at once, without taking the keyboard from the window that has it.
  explicit ToolkitTable(QSize size);
  /// Shows these rows instead of those before.
  void fill(Texts rows);

 private:
  class Model : public QAbstractTableModel {
   public:
    void fill(Texts rows);
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

   private:
    Texts rows_;
  };

  Model model_;
};
