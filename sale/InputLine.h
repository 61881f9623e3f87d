#pragma once

#include <QElapsedTimer>
#include <QLineEdit>
#include <QPixmap>
#include <QTimer>

#include "sale/CharacterPictures.h"

/// The input line of the sale screen, where each digit of each scanned code is painted: a line edit
/// that takes and shows a typed character for a third of what it costs the toolkit. It looks the
/// same. Whatever is more than ASCII characters at the left end, all in view and none of them
/// selected, is left to the toolkit.
class InputLine : public QLineEdit {
  Q_OBJECT

 public:
  explicit InputLine(QWidget* parent = nullptr);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  bool isPlain() const;
  bool fits() const;
  bool paintPlain();
  void paintCursor(QPainter& painter);
  void blink();
  void relearn();
  void learn();
  void learnPlace(const QRect& inside);

  CharacterPictures characters_;
  bool composing_ = false;  ///< an input method has a text that is not yet entered
  bool painted_ = false;    ///< by the toolkit, at the left end and all in view
  QPixmap empty_;           ///< the line without its text; null until it is known
  QRect room_;              ///< of the text
  QRectF cursor_;           ///< at the left end
  QTimer blinking_;
  QElapsedTimer sinceKey_;
  bool cursorOn_ = true;
};
