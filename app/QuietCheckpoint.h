#pragma once

#include <QObject>
#include <QTimer>

class Connection;
class QCoreApplication;

/// Copies the data file's log into the data file in the pauses between key presses, so that no key
/// press waits for it. The longer the log, the shorter a pause will do; a log of 16 MiB is copied
/// as soon as what the last key caused has been painted.
class QuietCheckpoint : public QObject {
 public:
  /// Watches all windows of the application as long as it lives.
  QuietCheckpoint(QCoreApplication* application, Connection& connection);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void copy();

  Connection& connection_;
  QTimer pause_;
};
