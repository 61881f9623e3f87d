#pragma once

#include "reports/ExportRun.h"
#include "reports/JournalModel.h"
#include "saleslib/JournalQuery.h"
#include "shell/KeyDrivenDialog.h"

class DateField;
class QComboBox;
class QTableView;
class posMod;

/// The journal: entries of a period, a kind, an operator. It is read beside the window, by a
/// connection of its own; the mapped Esc stops that, and else closes the form. The mapped Enter
/// looks the entries up, wherever the focus is. Shown modally with exec(); a new one per use.
class frmJournal : public KeyDrivenDialog {
  Q_OBJECT

 public:
  explicit frmJournal(posMod& pos, QWidget* parent = nullptr);

 protected:
  void closeEvent(QCloseEvent* event) override;
  void cancel() override;

 private:
  void fill();
  void arrange();
  JournalFilter filter() const;
  void search();
  void fitDetails();
  void read(std::vector<JournalModel::Shown>& found);

  posMod& pos_;
  std::map<std::int64_t, std::string> names_;
  JournalModel* model_;
  DateField* DtBegin_;
  DateField* Dtfinish_;
  QComboBox* cobKind_;
  QComboBox* cobOperator_;
  QPushButton* cmdSearch_;
  QPushButton* cmdCancel_;
  QTableView* listEntries_;
  QLabel* lblState_;
  ExportRun run_;
};
