#pragma once

#include <QWidget>

#include "shop/TimeLeft.h"

class QLabel;
class QProgressBar;

/// What is being done, how much of it is, and how long it will still take; then what came of it.
class WorkProgress : public QWidget {
  Q_OBJECT

 public:
  explicit WorkProgress(QWidget* parent = nullptr);

  void begin(const QString& doing);
  /// The part that is done, 0 ... 1; after say() the new text stays.
  void show(double part);
  /// Another text beside the bar, which goes on.
  void say(const QString& text);
  void end(const QString& result);

 private:
  QLabel* lblState_;
  QProgressBar* barDone_;
  QString doing_;
  TimeLeft left_;
};
