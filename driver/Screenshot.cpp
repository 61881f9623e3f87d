#include "Screenshot.h"

#include <QApplication>
#include <QPainter>
#include <QScreen>
#include <QWidget>

QImage screenshot() {
  const QRect screen = QGuiApplication::primaryScreen()->geometry();
  QImage image(screen.size(), QImage::Format_RGB32);
  image.fill(Qt::black);
  QPainter painter(&image);
  // Modal windows lie above those that opened them, and the active one above all.
  QWidgetList windows;
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->isVisible()) windows.append(window);
  }
  const QWidget* active = QApplication::activeWindow();
  const auto depth = [active](const QWidget* window) {
    if (window == active) return 3;
    return window->windowFlags().testFlag(Qt::Dialog) ? 2 : window->isModal() ? 1 : 0;
  };
  std::stable_sort(windows.begin(), windows.end(),
                   [&](const QWidget* a, const QWidget* b) { return depth(a) < depth(b); });
  for (QWidget* window : windows) {
    painter.drawPixmap(window->frameGeometry().topLeft() - screen.topLeft(), window->grab());
  }
  return image;
}
