#pragma once

#include <QHash>
#include <QObject>
#include <QPointer>

class QGuiApplication;
class QKeyEvent;

/// Decides for the whole program which press is the repeat of a key held down, so that every
/// control can go by QKeyEvent::isAutoRepeat(). X11 repeats a key by a release and a press of the
/// same moment, and the toolkit takes the press for a new one when it has not arrived yet as the
/// release is looked at, which is the rule on a busy machine.
///
/// A key held down also acts only where it went down: it answers no question and types into no
/// field that has come up meanwhile. Tab and the arrows may walk on through a window's controls.
class HeldKeys : public QObject {
  Q_OBJECT

 public:
  /// Watches all windows of the application as long as it lives.
  explicit HeldKeys(QGuiApplication* application);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct Key {
    QPointer<QObject> window, control;  ///< where it went down
    quint64 released = 0;               ///< time stamp of the last release, in milliseconds
  };
  bool isRepeat(const QKeyEvent& press) const;
  bool actsHere(const QObject* window, const QKeyEvent& press) const;
  bool pressed(QObject* window, QKeyEvent& press);

  QHash<int, Key> keys_;  ///< by Qt::Key
};
