#pragma once

#include <QString>

#include "goodsin/LongWork.h"
#include "shell/KeyDrivenDialog.h"

class WorkProgress;

/// Makes a shop while it is shown; accepted when it is made. Esc ends that, and leaves nothing.
class dlgMaking : public KeyDrivenDialog {
  Q_OBJECT

 public:
  /// `make` works in a thread of its own and says whether it came to its end.
  using Make = std::function<bool(const GoOn& goOn)>;
  dlgMaking(const KeyBoard& keys, Make make, QWidget* parent);

  /// Why the shop was not made; empty when somebody ended it.
  const QString& refusal() const { return refusal_; }

 protected:
  void showEvent(QShowEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void cancel() override;

 private:
  void work();

  Make make_;
  LongWork work_;
  WorkProgress* progress_;
  QString refusal_;
};
