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
double PaintWatch::untilPainted(const QString& name, const std::function<void()>& act,
                                const std::function<bool()>& shows) {
  bool painted = false;
  afterPaint(name, [&painted] { painted = true; });
  shows_ = shows;
  since_ = Stopwatch();
  act();
  while (!painted || shows_) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
  return shown_;
}

/// Lets the widget paint, here and now, and looks at the watch.
void PaintWatch::paint(QObject* watched, QEvent* event) {
  painting_ = true;
  qApp->notify(watched, event);
  painting_ = false;
  shown_ = since_.microseconds();
  shows_ = nullptr;
}

// The event comes before its painting; everything that is painted with it is painted before the
// event loop turns again. A list paints its viewport.
bool PaintWatch::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::Paint || painting_) return false;
  const QString name = watched->objectName();
  if (name == "frmMsg" || name == "messageBox") qFatal("an unexpected message");
  const bool viewport = watched->parent() && watched->parent()->objectName() == name_;
  if (then_ && (name == name_ || viewport)) {
    QTimer::singleShot(0, this, std::exchange(then_, nullptr));
  }
  if (!shows_ || !viewport || !shows_()) return false;
  paint(watched, event);
  return true;
}
