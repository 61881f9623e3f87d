#include "shell/FocusReturn.h"

#include <QEvent>
#include <QGuiApplication>
#include <QTimer>
#include <QWindow>

namespace {

/// Runs when what happens now is complete, if `window` still lives then.
void soon(QWindow* window, void (*act)(QWindow& window)) {
  QTimer::singleShot(0, window, [window, act] { act(*window); });
}

void activateIfInFront(QWindow& window) {
  if (window.isVisible() && QGuiApplication::modalWindow() == &window) window.requestActivate();
}

// A modal window that has opened meanwhile comes first. A hidden window has no use for the
// keyboard.
void activateFrontIfNobodyHasKeyboard(QWindow& window) {
  const QWindow* owner = QGuiApplication::focusWindow();
  if (owner != nullptr && owner->isVisible()) return;
  QWindow* modal = QGuiApplication::modalWindow();
  QWindow& front = modal != nullptr ? *modal : window;
  if (front.isVisible()) front.requestActivate();
}

void returnFrom(const QWindow& hidden) {
  if (QWindow* parent = hidden.transientParent()) soon(parent, activateFrontIfNobodyHasKeyboard);
}

}  // namespace

// A menu that is closed at once may be given the keyboard when it is hidden already.
FocusReturn::FocusReturn(QGuiApplication* application) : QObject(application) {
  application->installEventFilter(this);
  connect(application, &QGuiApplication::focusWindowChanged, this, [](QWindow* window) {
    if (window != nullptr && !window->isVisible()) returnFrom(*window);
  });
}

// Only the window that was right under a closed modal one is unblocked. A menu blocks nothing: what
// it was opened from is its parent.
bool FocusReturn::eventFilter(QObject* watched, QEvent* event) {
  if (watched->isWindowType()) {
    auto* window = static_cast<QWindow*>(watched);
    if (event->type() == QEvent::Show && window->isModal()) {
      soon(window, activateIfInFront);
    } else if (event->type() == QEvent::WindowUnblocked) {
      soon(window, activateFrontIfNobodyHasKeyboard);
    } else if (event->type() == QEvent::Hide && window == QGuiApplication::focusWindow()) {
      returnFrom(*window);
    }
  }
  return QObject::eventFilter(watched, event);
}
