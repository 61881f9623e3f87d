#pragma once

#include <QDialog>
#include <cstdint>
#include <memory>
#include <vector>

#include "base/DateTime.h"

class ClsSell;
class KeyBoard;
class ListModel;
class QFrame;
class QTableView;

/// The bills put aside, and the goods of the selected one: the cashier picks the bill to go on
/// with.
class frmRecord : public QDialog {
  Q_OBJECT

 public:
  explicit frmRecord(const KeyBoard& keys, QWidget* parent = nullptr);

  /// Shows the bills modally, in their order, all with that time; gives the number of the bill
  /// chosen, or 0. The bills outlive the call.
  std::int32_t Load(const std::vector<std::shared_ptr<ClsSell>>& bills, const DateTime& now);
  /// Fills listProducts with the lines of the bill selected in listSell.
  void viewSelectpro();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  QTableView* list(const char* name, ListModel* model);
  QFrame* frame(const char* name, const char* label, const QString& caption, QTableView* content);
  void setUpColumns();

  /// True when the key was used up.
  bool handleKey(const QObject* watched, const QKeyEvent& event);
  void chooseSelected();

  const KeyBoard& keys_;
  ListModel* bills_;
  ListModel* lines_;
  QTableView* listSell_;
  QTableView* listProducts_;
  const std::vector<std::shared_ptr<ClsSell>>* held_ = nullptr;  ///< while the form is shown
  std::int32_t chosen_ = 0;                                      ///< number of the bill chosen
};
