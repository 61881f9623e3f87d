#pragma once

#include <QObject>
#include <vector>

class KeyBoard;
class QDialog;
class QKeyEvent;
class QWidget;

/// Lets a dialog be used with the mapped keys alone. Esc cancels it; Enter presses a button,
/// chooses a row of a list, and goes on to the next control from any other; Up and Down choose in
/// drop-down lists and walk through the other controls, lists aside. In a text box a key that types
/// a character types it.
class DialogKeys : public QObject {
  Q_OBJECT

 public:
  /// `controls` are in the order of the eye, which becomes the tab order; the first one gets the
  /// focus. Belongs to the dialog.
  DialogKeys(const KeyBoard& keys, QDialog* dialog, std::vector<QWidget*> controls);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool handleKey(QWidget* control, const QKeyEvent& event);
  void confirm(QWidget* control);
  void step(QWidget* control, int by);
  void focusFrom(QWidget* control, int by);

  const KeyBoard& keys_;
  QDialog* dialog_;
  std::vector<QWidget*> controls_;
};
