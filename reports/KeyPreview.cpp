#include "reports/KeyPreview.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>
#include <utility>

#include "platform/VirtualKey.h"

KeyPreview::KeyPreview(QWidget* window, Taken taken)
    : QObject(window), window_(window), taken_(std::move(taken)) {
  qApp->installEventFilter(this);
}

bool KeyPreview::eventFilter(QObject* receiver, QEvent* event) {
  if (event->type() != QEvent::KeyPress || !receiver->isWidgetType()) return false;
  if (static_cast<QWidget*>(receiver)->window() != window_) return false;
  return taken_(virtualKey(*static_cast<QKeyEvent*>(event)));
}
