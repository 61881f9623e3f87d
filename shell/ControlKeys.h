#pragma once

#include <QObject>

class KeyBoard;
class QApplication;
class QKeyEvent;

/// What the toolkit's own controls do with keys, brought in line with the keyboard map for all
/// windows: lists go by the mapped Up and Down keys, and the menu key, which opens the till's
/// menus, opens no editing menu in a text field.
class ControlKeys : public QObject {
  Q_OBJECT

 public:
  /// Watches all controls of the application as long as it lives.
  ControlKeys(QApplication* application, const KeyBoard& keys);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  /// How many rows further a key moves a list: none for the arrows themselves, which lists know.
  int rowsFor(const QKeyEvent& press) const;

  const KeyBoard& keys_;
};
