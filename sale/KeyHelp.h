#pragma once

#include <QLabel>
#include <QStringList>

/// A label for a list of phrases parted by blanks. A phrase is never broken: lines are filled with
/// whole phrases, as many as the width takes, and centred.
class KeyHelp : public QLabel {
  Q_OBJECT

 public:
  using QLabel::QLabel;
  int heightForWidth(int width) const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QStringList lines(int width) const;
};
