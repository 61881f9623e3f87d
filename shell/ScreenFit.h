#pragma once

#include <QObject>

class QApplication;
class QDialog;

/// Keeps every dialog on its screen, which is small when texts are shown large. A dialog that
/// cannot be made small enough gets scroll bars, and scrolls by itself to the control that has the
/// focus.
class ScreenFit : public QObject {
  Q_OBJECT

 public:
  /// Watches all dialogs of the application as long as it lives. They have their controls in a
  /// layout when they are first shown.
  explicit ScreenFit(QApplication* application);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
};
