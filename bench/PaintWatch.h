#pragma once

#include <QObject>
#include <QString>
#include <functional>

/// Tells when a widget has been painted: what is measured ends when the cashier sees it. A message
/// that nobody expects ends the program.
class PaintWatch : public QObject {
 public:
  PaintWatch();

  /// Calls `then` once, when the widget of that name (or the list of that name) and whatever is
  /// painted with it has been painted the next time.
  void afterPaint(const QString& name, std::function<void()> then);
  /// Acts, and lets events happen until that widget has been painted since.
  void untilPainted(const QString& name, const std::function<void()>& act);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QString name_;
  std::function<void()> then_;
};
