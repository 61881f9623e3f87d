#pragma once

#include <filesystem>
#include <optional>

#include "goodsin/GoodsRun.h"
#include "shell/KeyDrivenDialog.h"

class PreviewTable;
class QProgressBar;

/// Reads a goods sheet when it is shown, says what it would do, and brings it in when that is
/// confirmed; then it is accepted. Esc stops the reading, or leaves; once the rows count, it waits
/// for the end. A refused row keeps the whole sheet out.
class dlgGoodsPreview : public KeyDrivenDialog {
  Q_OBJECT

 public:
  dlgGoodsPreview(const KeyBoard& keys, const Connection& shop, std::filesystem::path file,
                  GoodsMapping mapping, QWidget* parent);

  /// What was brought in; made for an accepted dialog.
  const GoodsPreview& written() const { return *written_; }

 protected:
  void showEvent(QShowEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void cancel() override;

 private:
  using Run = std::optional<GoodsPreview> (GoodsRun::*)(const std::filesystem::path&,
                                                        const GoodsMapping&, const GoodsRun::Show&);
  void arrange();
  void read();
  void write();
  std::optional<GoodsPreview> go(Run work, const QString& doing);
  void showEnd(const QString& text);

  GoodsRun run_;
  std::filesystem::path file_;
  GoodsMapping mapping_;
  std::optional<GoodsPreview> written_;
  QLabel* lblState_;
  QProgressBar* barDone_;
  PreviewTable* tblPreview_;
  QPushButton* cmdOk_;
  QPushButton* cmdCancel_;
};
