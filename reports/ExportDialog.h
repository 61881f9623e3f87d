#pragma once

#include <filesystem>

#include "shell/KeyDrivenDialog.h"

class QRadioButton;

/// Asks for the name of an export in the folder that the shop's owner has set, and for its kind.
/// Nothing but a file of that name can be replaced, and that after a question.
class ExportDialog : public KeyDrivenDialog {
  Q_OBJECT

 public:
  /// `proposed` is a name without its ending.
  ExportDialog(const KeyBoard& keys, std::filesystem::path folder, const QString& proposed,
               QWidget* parent);

  /// The file, whose name ends in ".xlsx" or ".csv". Made for an accepted dialog.
  std::filesystem::path file() const;
  /// Its name in that folder, or what is typed of it so far.
  QString name() const;

 private:
  void arrange();
  void confirm();
  QString faultOfName() const;
  bool mayWrite();

  std::filesystem::path folder_;
  QLineEdit* txtName_;
  QRadioButton* OptXlsx_;
  QRadioButton* OptCsv_;
  QPushButton* cmdOk_;
  QPushButton* cmdCancel_;
};
