#pragma once

#include <optional>

#include "goodsin/GoodsTarget.h"
#include "goodsin/LongWork.h"
#include "shell/KeyDrivenDialog.h"

class PreviewTable;
class WorkProgress;

/// Reads a goods sheet when it is shown, says what it would do, and brings it in when that is
/// confirmed, unless it comes in later; then it is accepted. Esc stops the reading, or leaves; once
/// the rows count, it waits for the end. A refused row keeps the whole sheet out.
class dlgGoodsPreview : public KeyDrivenDialog {
  Q_OBJECT

 public:
  dlgGoodsPreview(const KeyBoard& keys, GoodsTarget target, GoodsSheet sheet, QWidget* parent);

  /// What was brought in, or will be; made for an accepted dialog.
  const GoodsPreview& taken() const { return *taken_; }

 protected:
  void showEvent(QShowEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void cancel() override;

 private:
  void arrange();
  void read();
  void showPreview(const GoodsPreview& preview);
  void take();
  std::optional<GoodsPreview> go(const GoodsTarget::Work& work, const QString& doing);

  GoodsTarget target_;
  GoodsSheet sheet_;
  LongWork work_;
  std::optional<GoodsPreview> taken_;
  WorkProgress* progress_;
  PreviewTable* tblPreview_;
  QPushButton* cmdOk_;
  QPushButton* cmdCancel_;
};
