#pragma once

#include <filesystem>

#include "reports/ExportRun.h"
#include "shell/KeyDrivenDialog.h"

class DateField;
class QProgressBar;
class QRadioButton;
class posMod;
enum class ReportFormat;

/// The owner's report of a period as a file in the folder for exports. It is made beside the
/// window, by a connection of its own, and the window says how far it is; the mapped Esc stops it,
/// and else closes the form. The mapped Enter makes it, wherever the focus is. Shown modally with
/// exec(); a new one per use.
class frmReport : public KeyDrivenDialog {
  Q_OBJECT

 public:
  explicit frmReport(posMod& pos, QWidget* parent = nullptr);

 protected:
  void closeEvent(QCloseEvent* event) override;
  void cancel() override;

 private:
  void arrange();
  QRadioButton* choice(const char* name, const QString& text);
  ReportFormat format() const;
  bool hasPeriod();
  bool mayWrite(const std::filesystem::path& file);
  void make();
  void makeFile(const std::filesystem::path& file);
  void showPart(std::size_t perMille);
  void showIdle(const QString& what);

  posMod& pos_;
  DateField* DtBegin_;
  DateField* Dtfinish_;
  QRadioButton* OptHtml_;
  QRadioButton* OptXlsx_;
  QRadioButton* OptCsv_;
  QRadioButton* OptText_;
  QPushButton* cmdOk_;
  QPushButton* cmdCancel_;
  QLabel* lblState_;
  QProgressBar* prgState_;
  ExportRun run_;
};
