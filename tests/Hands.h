#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QTest>
#include <QTimer>
#include <deque>
#include <functional>
#include <string>
#include <utility>
#include <vector>

/// The hands of someone at the till: what they do, in order, each step as soon as the window of
/// that name is the modal one in front. A step that never comes fails the test and closes the
/// windows.
class Hands : public QObject {
 public:
  using Step = std::function<void(QWidget& window)>;

  Hands() { lookSoon(); }

  Hands& at(const char* window, Step step) {
    steps_.emplace_back(window, std::move(step));
    return *this;
  }
  /// Presses keys, one after the other, on whatever has the focus in the window.
  Hands& press(const char* window, std::initializer_list<Qt::Key> keys) {
    return at(window, [keys = std::vector(keys)](QWidget&) {
      for (const Qt::Key key : keys) pressNow(key);
    });
  }
  Hands& type(const char* window, const QString& text) {
    return at(window, [text](QWidget& shown) { QTest::keyClicks(focusIn(shown), text); });
  }
  /// Reads the next message box and confirms it.
  Hands& confirm(std::vector<std::string>& said) {
    return at("messageBox", [&said](QWidget& box) {
      QString text = box.findChild<QLabel*>("qt_msgbox_label")->text();
      said.push_back(text.remove(QChar(0x200B)).toStdString());
      pressNow(Qt::Key_Return);
    });
  }
  bool idle() const { return steps_.empty(); }

  static void pressNow(Qt::Key key) {
    QWidget* shown = QApplication::activeModalWidget();
    QTest::keyClick(focusIn(*shown), key);
  }

 private:
  static constexpr int kPatienceMs = 5000;

  static QWidget* focusIn(QWidget& window) {
    QWidget* focus = window.focusWidget();
    return focus ? focus : &window;
  }

  // A step may open a window of its own and return late, so the next look is arranged before it.
  void lookSoon() { QTimer::singleShot(1, this, &Hands::look); }
  void look() {
    lookSoon();
    QWidget* shown = QApplication::activeModalWidget();
    if (!shown || steps_.empty()) return waited_.invalidate();
    if (shown->objectName() == steps_.front().first) {
      const Step step = std::move(steps_.front().second);
      steps_.pop_front();
      waited_.invalidate();
      return step(*shown);
    }
    if (!waited_.isValid()) waited_.start();
    if (waited_.elapsed() > kPatienceMs) giveUp(*shown);
  }
  void giveUp(QWidget& shown) {
    ADD_FAILURE() << shown.objectName().toStdString() << " is in front, not "
                  << steps_.front().first.toStdString();
    steps_.clear();
    while (QWidget* front = QApplication::activeModalWidget()) front->hide();
    QCoreApplication::quit();
  }

  std::deque<std::pair<QString, Step>> steps_;
  QElapsedTimer waited_;
};
