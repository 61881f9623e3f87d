#pragma once

#include <QLabel>
#include <QStringList>

class KeyBoard;

/// What the keys of the sale screen do, as they are mapped, in phrases parted by blanks. A phrase
/// is never broken: lines are filled with whole phrases, as many as the width takes, and centred.
class KeyHelp : public QLabel {
  Q_OBJECT

 public:
  using QLabel::QLabel;
  /// A function without a key is left out.
  void show(const KeyBoard& keys);
  int heightForWidth(int width) const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QStringList lines(int width) const;
};
