#pragma once

#include <QObject>

/// Gives the keyboard to a modal window when it opens, and back to the window that lies in front
/// when it has closed. A window manager does that by itself, but a till may well run without one.
class FocusReturn : public QObject {
  Q_OBJECT

 public:
  /// Watches all windows of the application as long as it lives.
  explicit FocusReturn(QObject* application);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
};
