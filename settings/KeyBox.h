#pragma once

#include <QLineEdit>
#include <optional>

/// Shows a control in red, or as usual again; the style sheet knows it by its property "shared".
void markShared(QWidget& control, bool shared);

/// A box that takes a key instead of text: the key pressed and let go in it becomes its text, the
/// virtual-key code in decimal; the key's name stands at its right edge. Tab and Alt with an access
/// key still move on.
class KeyBox : public QLineEdit {
  Q_OBJECT

 public:
  explicit KeyBox(QWidget* parent = nullptr);

  /// Nothing when the text is no whole number (only the clipboard can do that).
  std::optional<int> code() const;
  void setCode(int code);
  /// Red while the key has another function too.
  void setShared(bool shared);
  bool isShared() const;

 signals:
  void captured();  ///< a key was taken over; code() is its code

 protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  int pressed_ = 0;  ///< the key that went down in this box and has not come up, 0 for none
};
