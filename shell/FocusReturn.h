#pragma once

#include <QObject>

class QGuiApplication;

/// Gives the keyboard to a modal window when it opens, and back to the window that lies in front
/// when it, or a menu, has closed. A window manager does that by itself, but a till may well run
/// without one.
class FocusReturn : public QObject {
  Q_OBJECT

 public:
  /// Watches all windows of the application as long as it lives.
  explicit FocusReturn(QGuiApplication* application);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
};
