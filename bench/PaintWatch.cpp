#include "bench/PaintWatch.h"

#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <utility>

PaintWatch::PaintWatch() {
  qApp->installEventFilter(this);
}

void PaintWatch::afterPaint(const QString& name, std::function<void()> then) {
  name_ = name;
  then_ = std::move(then);
}

// What an action changes may be painted before it returns.
void PaintWatch::untilPainted(const QString& name, const std::function<void()>& act) {
  bool painted = false;
  afterPaint(name, [&painted] { painted = true; });
  act();
  while (!painted) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

// The event comes before its painting; everything that is painted with it is painted before the
// event loop turns again. A list paints its viewport.
bool PaintWatch::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::Paint) return false;
  const QString name = watched->objectName();
  if (name == "frmMsg" || name == "messageBox") qFatal("an unexpected message");
  const bool viewport = watched->parent() && watched->parent()->objectName() == name_;
  if (then_ && (name == name_ || viewport)) {
    QTimer::singleShot(0, this, std::exchange(then_, nullptr));
  }
  return false;
}
