#include "shell/HeldKeys.h"

#include <QGuiApplication>
#include <QKeyEvent>

namespace {

bool walksOn(int key) {
  return key == Qt::Key_Tab || key == Qt::Key_Backtab ||
         (key >= Qt::Key_Left && key <= Qt::Key_Down);
}

}  // namespace

HeldKeys::HeldKeys(QGuiApplication* application) : QObject(application) {
  application->installEventFilter(this);
}

// A key comes to its window before it comes to a control there, and is judged once.
bool HeldKeys::eventFilter(QObject* watched, QEvent* event) {
  if (!watched->isWindowType()) return false;
  if (event->type() == QEvent::KeyPress) return pressed(watched, *static_cast<QKeyEvent*>(event));
  if (event->type() == QEvent::KeyRelease) {
    const auto& release = *static_cast<QKeyEvent*>(event);
    keys_[release.key()].released = release.timestamp();
  }
  return false;
}

bool HeldKeys::pressed(QObject* window, QKeyEvent& press) {
  if (!isRepeat(press)) {
    Key& key = keys_[press.key()];
    key.window = window;
    key.control = QGuiApplication::focusObject();
    return false;
  }
  if (!actsHere(window, press)) return true;
  if (press.isAutoRepeat()) return false;
  QKeyEvent repeat(QEvent::KeyPress, press.key(), press.modifiers(), press.nativeScanCode(),
                   press.nativeVirtualKey(), press.nativeModifiers(), press.text(), true,
                   static_cast<quint16>(press.count()));
  repeat.setTimestamp(press.timestamp());
  QCoreApplication::sendEvent(window, &repeat);
  return true;
}

// What no keyboard sent has no scan code, and its time says nothing.
bool HeldKeys::isRepeat(const QKeyEvent& press) const {
  if (press.isAutoRepeat()) return true;
  return press.nativeScanCode() != 0 && press.timestamp() != 0 &&
         press.timestamp() == keys_.value(press.key()).released;
}

bool HeldKeys::actsHere(const QObject* window, const QKeyEvent& press) const {
  const Key key = keys_.value(press.key());
  return key.window == window &&
         (walksOn(press.key()) || key.control == QGuiApplication::focusObject());
}
