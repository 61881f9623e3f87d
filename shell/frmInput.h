#pragma once

#include <QDialog>

class KeyBoard;
class QLabel;
class QLineEdit;

/// Asks for one text: a missing price, a member's number.
class frmInput : public QDialog {
  Q_OBJECT

 public:
  explicit frmInput(const KeyBoard& keys, QWidget* parent = nullptr);
  /// Shows the dialog modally. An empty title or message has the price question's text. Gives what
  /// was typed, or an empty text after Esc.
  QString init(const QString& title, const QString& message);

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  const KeyBoard& keys_;
  QLabel* lblTitle_;
  QLabel* lblMsg_;
  QLineEdit* txtPrice_;
};
