#pragma once

#include <QObject>
#include <QPoint>
#include <QString>
#include <QStringList>
#include <deque>
#include <functional>
#include <random>

class QWidget;
class QWindow;

/// Works the till without much sense: random keys, clicks and texts in whatever window is in front,
/// at times with the wish to get home to the main menu. The same seed does the same, as long as the
/// till does.
class Monkey : public QObject {
 public:
  using Tell = std::function<void(const QString&)>;

  /// `words` are texts worth typing, barcodes for example. Tells "at N" every hundred events and
  /// in the end, back home, "ok N"; or "error" with the name of a window that cannot be left.
  Monkey(unsigned seed, int events, QStringList words, Tell tell);

  void start();

 private:
  void next();
  void end(const QString& line);
  void playAround();
  void goHome();
  void leaveByMenu();
  bool atHome() const;
  void logIn();
  void chooseFromMainMenu();
  bool speak(const QString& window);
  void randomKey();
  void randomText();
  void randomMouse();
  void closeWindow();

  int below(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }
  bool chance(int percent) { return below(100) < percent; }
  template <class List>
  auto one(const List& list) {
    return *(std::begin(list) + below(static_cast<int>(std::size(list))));
  }
  void key(int key, Qt::KeyboardModifiers modifiers = {}, const QString& text = {});
  void type(const QString& text);
  void mouse(QEvent::Type type, QPoint place, Qt::MouseButton button);

  std::mt19937 random_;
  int events_;
  QStringList words_;
  Tell tell_;
  std::deque<std::function<void()>> queue_;  ///< presses and releases still to be delivered
  QString window_;                           ///< in front at the last event
  int done_ = 0;
  bool ended_ = false;
  int leaving_ = 0;  ///< events since the wish to get home; 0: no wish
  int clock_ = 0;    ///< of the mouse, in milliseconds
};
