#include "platform/MousePointer.h"

#include <QCursor>
#include <QGuiApplication>

void showMousePointer(bool show) {
  const QCursor* cursor = QGuiApplication::overrideCursor();
  const bool hidden = cursor != nullptr && cursor->shape() == Qt::BlankCursor;
  if (show && hidden) QGuiApplication::restoreOverrideCursor();
  if (!show && !hidden) QGuiApplication::setOverrideCursor(Qt::BlankCursor);
}
