#pragma once

#include <QObject>
#include <QString>
#include <functional>

#include "bench/Stopwatch.h"

/// Tells when a widget has been painted: what is measured ends when the cashier sees it. A message
/// that nobody expects ends the program.
class PaintWatch : public QObject {
 public:
  PaintWatch();

  /// Calls `then` once, when the widget of that name (or the list of that name) and whatever is
  /// painted with it has been painted the next time.
  void afterPaint(const QString& name, std::function<void()> then);
  /// Acts, and lets events happen until the list of that name, and whatever is painted with it or
  /// because of the act, has been painted since. Gives the microseconds until the list alone had
  /// been painted for the first time when `shows` was true.
  double untilPainted(const QString& name, const std::function<void()>& act,
                      const std::function<bool()>& shows = {});

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void paint(QObject* watched, QEvent* event);

  QString name_;
  std::function<void()> then_;
  std::function<bool()> shows_;  ///< while the time until the first painting is measured
  Stopwatch since_;
  double shown_ = 0;
  bool painting_ = false;
};
