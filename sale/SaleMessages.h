#pragma once

#include <QCoreApplication>
#include <QString>

#include "shell/Modal.h"

class QWidget;

/// The messages of the sale screen. They beep, since the cashier looks at the goods, and goods that
/// are scanned while one is in front do not answer it: what the scanner sent is swallowed, and a
/// further message says that it was not rung. A scanner is known by its speed.
class SaleMessages {
  Q_DECLARE_TR_FUNCTIONS(SaleMessages)

 public:
  explicit SaleMessages(QWidget* screen);

  /// The program's own message window, closed by any key.
  void show(const QString& text);
  /// The system's message box. A scan leaves it open.
  void box(const QString& text, const QString& title, BoxIcon icon);
  /// A question with Yes and No. A scan does not answer it with its Enter.
  [[nodiscard]] bool ask(const QString& text, const QString& title, bool yesPreselected);

 private:
  static QString notRung();

  QWidget* screen_;
};
