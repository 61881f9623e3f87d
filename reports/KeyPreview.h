#pragma once

#include <QObject>
#include <functional>

class QKeyEvent;
class QWidget;

/// Shows a window every key press within it before its controls see it; presses in its pop-ups and
/// message boxes stay theirs.
class KeyPreview : public QObject {
 public:
  /// Gives the virtual-key code; true means that the key is done with.
  using Taken = std::function<bool(int key)>;
  /// Goes with the window.
  KeyPreview(QWidget* window, Taken taken);

 protected:
  bool eventFilter(QObject* receiver, QEvent* event) override;

 private:
  QWidget* window_;
  Taken taken_;
};
