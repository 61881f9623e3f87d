#pragma once

#include <QDialog>
#include <cstdint>
#include <memory>
#include <vector>

#include "base/DateTime.h"
#include "shell/KeyDrivenDialog.h"

class ClsSell;
class ListModel;
class QFrame;
class QTableView;

/// The bills put aside, and the goods of the selected one: the cashier picks the bill to go on
/// with.
class frmRecord : public KeyDrivenDialog {
  Q_OBJECT

 public:
  explicit frmRecord(const KeyBoard& keys, QWidget* parent = nullptr);

  /// Shows the bills modally, in their order, all with that time; gives the number of the bill
  /// chosen, or 0. The bills outlive the call.
  std::int32_t Load(const std::vector<std::shared_ptr<ClsSell>>& bills, const DateTime& now);
  /// Fills listProducts with the lines of the bill selected in listSell.
  void viewSelectpro();

 private:
  QTableView* list(const char* name, ListModel* model);
  QFrame* frame(const char* name, const char* heading, const QString& caption, QTableView* content);
  void setUpColumns();
  void chooseSelected();

  ListModel* bills_;
  ListModel* lines_;
  QTableView* listSell_;
  QTableView* listProducts_;
  const std::vector<std::shared_ptr<ClsSell>>* held_ = nullptr;  ///< while the form is shown
  std::int32_t chosen_ = 0;                                      ///< number of the bill chosen
};
