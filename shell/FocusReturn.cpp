#include "shell/FocusReturn.h"

#include <QEvent>
#include <QGuiApplication>
#include <QTimer>
#include <QWindow>

namespace {

/// A hidden window has no use for the keyboard, and none that lies under a modal one, menus aside.
bool canUseKeyboard(const QWindow& window) {
  const QWindow* modal = QGuiApplication::modalWindow();
  return window.isVisible() && (modal == nullptr || modal == &window || window.type() == Qt::Popup);
}

/// Once what happens now is complete, the modal window in front has the keyboard, or `window` when
/// there is none, unless somebody has it who can use it.
void giveToFront(QWindow* window) {
  QTimer::singleShot(0, window, [window] {
    const QWindow* owner = QGuiApplication::focusWindow();
    if (owner != nullptr && canUseKeyboard(*owner)) return;
    QWindow* modal = QGuiApplication::modalWindow();
    QWindow* front = modal != nullptr ? modal : window;
    if (front->isVisible()) front->requestActivate();
  });
}

void takeFrom(QWindow& window) {
  if (QWindow* parent = window.transientParent()) {
    giveToFront(parent);
  } else if (QWindow* modal = QGuiApplication::modalWindow()) {
    giveToFront(modal);
  }
}

}  // namespace

// A menu that is closed at once may be given the keyboard when it is hidden already, and a window
// when a modal one lies over it already.
FocusReturn::FocusReturn(QGuiApplication* application) : QObject(application) {
  application->installEventFilter(this);
  connect(application, &QGuiApplication::focusWindowChanged, this, [](QWindow* window) {
    if (window != nullptr && !canUseKeyboard(*window)) takeFrom(*window);
  });
}

// Only the window that was right under a closed modal one is unblocked. A menu blocks nothing: what
// it was opened from is its parent.
bool FocusReturn::eventFilter(QObject* watched, QEvent* event) {
  if (watched->isWindowType()) {
    auto* window = static_cast<QWindow*>(watched);
    const bool opens = event->type() == QEvent::Show && window->isModal();
    if (opens || event->type() == QEvent::WindowUnblocked) {
      giveToFront(window);
    } else if (event->type() == QEvent::Hide && window == QGuiApplication::focusWindow()) {
      takeFrom(*window);
    }
  }
  return QObject::eventFilter(watched, event);
}
