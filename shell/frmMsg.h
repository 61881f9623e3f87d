#pragma once

#include <QDialog>

class QLabel;

/// The program's own message window: one text, closed by any key or click.
class frmMsg : public QDialog {
  Q_OBJECT

 public:
  explicit frmMsg(QWidget* parent = nullptr);
  /// Shows the text modally; returns when the window has been closed.
  void Message(const QString& msg);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  /// A key that was pressed anew; closes the window.
  virtual void pressed(const QKeyEvent& event);
  void mousePressEvent(QMouseEvent* event) override;

 private:
  QLabel* Label1_;  ///< the text
};
