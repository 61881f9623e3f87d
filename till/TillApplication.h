#pragma once

#include <QApplication>

/// The event loop of the till, and the one place where a failure ends up that no handler expected:
/// it is shown in a message box, and the program ends with code 1.
class TillApplication : public QApplication {
  Q_OBJECT

 public:
  using QApplication::QApplication;
  bool notify(QObject* receiver, QEvent* event) override;

  /// Shows why the program has to end.
  static void showFailure(const std::exception& failure);

 private:
  bool failed_ = false;
};
