#pragma once

#include <QLabel>
#include <vector>

#include "sale/CharacterPictures.h"

/// A label of which no part is ever lost unseen. Each line of its text is shown as large as set and
/// smaller when it would not fit. What would become too small to read ends with "…"; a text of one
/// line goes on below before that, as far as the label's height allows. Its indent is kept free at
/// both ends.
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
  struct Line {
    QString text;
    int size;
  };

  void fit();
  void wrap(const QString& text);
  int fittingSize(const QString& text) const;
  QFont sized(int size) const;
  QRect textRoom() const;

  CharacterPictures characters_;
  std::vector<Line> lines_;  ///< as they are painted
  int largest_ = 16;
  int smallest_ = 12;
};
