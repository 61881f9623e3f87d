#pragma once

#include <QDialog>

class KeyBoard;
class QLabel;
class QLineEdit;
class Settlement;

/// The dialog in which the cashier takes payment. Draws a Settlement and turns keys into its calls.
class frmEndSell : public QDialog {
  Q_OBJECT

 public:
  explicit frmEndSell(const KeyBoard& keys, QWidget* parent = nullptr);
  /// Shows the dialog modally for that settlement; true when payment was confirmed.
  [[nodiscard]] bool init(Settlement& settlement);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  const KeyBoard& keys_;
  Settlement* settlement_ = nullptr;
};
