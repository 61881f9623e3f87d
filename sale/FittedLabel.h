#pragma once

#include <QLabel>

#include "sale/CharacterPictures.h"

/// A label for one line of text that must never be cut off: it is shown as large as set, smaller
/// when it would not fit, and wrapped when it would become too small to read. Its indent is kept
/// free at both ends.
class FittedLabel : public QLabel {
  Q_OBJECT

 public:
  explicit FittedLabel(QWidget* parent = nullptr);
  /// Sizes in pixels.
  void setLargest(int size);
  void setSmallest(int size);
  void showText(const QString& text);

 protected:
  bool event(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void fit();
  QRect textRoom() const;

  CharacterPictures characters_;
  bool wraps_ = false;  ///< the text is too long for one line of the smallest type

  int largest_ = 16;
  int smallest_ = 12;
  int shown_ = 0;
};
