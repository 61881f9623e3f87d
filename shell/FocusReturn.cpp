#include "shell/FocusReturn.h"

#include <QEvent>
#include <QGuiApplication>
#include <QTimer>
#include <QWindow>

FocusReturn::FocusReturn(QObject* application) : QObject(application) {
  application->installEventFilter(this);
}

// Only the window that was right under the closed one is unblocked. It asks when the closing is
// complete, and only if nobody else has the keyboard by then; a modal window that has opened over
// it meanwhile comes first.
bool FocusReturn::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Show && watched->isWindowType()) {
    auto* window = static_cast<QWindow*>(watched);
    if (window->isModal()) {
      QTimer::singleShot(0, window, [window] {
        if (window->isVisible() && QGuiApplication::modalWindow() == window) {
          window->requestActivate();
        }
      });
    }
  }
  if (event->type() == QEvent::WindowUnblocked && watched->isWindowType()) {
    auto* window = static_cast<QWindow*>(watched);
    QTimer::singleShot(0, window, [window] {
      QWindow* modal = QGuiApplication::modalWindow();
      QWindow* front = modal != nullptr ? modal : window;
      if (front->isVisible() && !QGuiApplication::focusWindow()) front->requestActivate();
    });
  }
  return QObject::eventFilter(watched, event);
}
