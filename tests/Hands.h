#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QTimer>
#include <deque>
#include <functional>
#include <string>
#include <utility>
#include <vector>

/// The hands of someone at the till: what they do, in order, each step as soon as the window of
/// that name is the modal one in front. A step that never comes fails the test and closes the
/// windows, those too that come up later.
class Hands : public QObject {
 public:
  using Step = std::function<void(QWidget& window)>;

  Hands() { lookSoon(); }

  Hands& at(const char* window, Step step) {
    steps_.emplace_back(window, std::move(step));
    if (steps_.back().first != "messageBox") last_ = window;
    return *this;
  }
  /// Presses keys, one after the other, on whatever has the focus in the window.
  Hands& press(const char* window, std::initializer_list<Qt::Key> keys) {
    return at(window, [keys = std::vector(keys)](QWidget&) {
      for (const Qt::Key key : keys) pressNow(key);
    });
  }
  /// Types, on whatever has the focus each time: "\n" is Enter, "\t" Tab, "\b" Backspace, "⎋" Esc,
  /// arrows are themselves.
  Hands& type(const char* window, const QString& text) {
    return at(window, [text](QWidget&) { typeNow(text); });
  }
  /// The same in the window of the step before, a message box aside.
  Hands& type(const QString& text) { return type(last_, text); }
  Hands& see(const char* names, const char* texts) { return see(last_, names, texts); }
  /// A message, in a box or a window of its own, is this one or begins with it; it is confirmed.
  Hands& says(const char* window, const QString& text) {
    return at(window, [text](QWidget& shown) {
      const bool isBox = shown.objectName() == "messageBox";
      QString said = shown.findChild<QLabel*>(isBox ? "qt_msgbox_label" : "Label1")->text();
      EXPECT_EQ(said.remove(QChar(0x200B)).left(text.size()).toStdString(), text.toStdString());
      pressNow(Qt::Key_Return);
    });
  }
  /// The window's texts are these; see textsOf.
  Hands& see(const char* window, const char* names, const char* texts) {
    return at(window, [=](QWidget& shown) { EXPECT_EQ(textsOf(shown, names), texts); });
  }
  bool idle() const { return steps_.empty(); }

  static void pressNow(Qt::Key key) {
    QWidget* shown = QApplication::activeModalWidget();
    if (!shown) FAIL() << "there is no window for the key";
    QTest::keyClick(focusIn(*shown), key);
  }
  static void typeNow(const QString& text) {
    static const QString kNames = "\n\t\b⎋↑↓←→";
    static constexpr Qt::Key kKeys[] = {Qt::Key_Return, Qt::Key_Tab,  Qt::Key_Backspace,
                                        Qt::Key_Escape, Qt::Key_Up,   Qt::Key_Down,
                                        Qt::Key_Left,   Qt::Key_Right};
    for (const QChar each : text) {
      const qsizetype key = kNames.indexOf(each);
      if (key >= 0) {
        pressNow(kKeys[key]);
      } else {
        QTest::keyClicks(focusIn(*QApplication::activeModalWidget()), each);
      }
    }
  }
  /// The texts of a window's controls, by their names with blanks between them, and what has the
  /// focus: "text|text@name". What is disabled is in brackets.
  static std::string textsOf(QWidget& window, const char* names) {
    QStringList texts;
    for (const QString& name : QString(names).split(' ')) {
      const auto* control = window.findChild<QWidget*>(name);
      const QVariant text = control->property("text");
      texts << (text.isValid() ? text : control->property("currentText")).toString();
      if (!control->isEnabled()) texts.back() = "(" + texts.back() + ")";
    }
    return (texts.join('|') + "@" + focusIn(window)->objectName()).toStdString();
  }

 private:
  static constexpr int kPatienceMs = 30'000;  // a busy disk makes no shop in five seconds

  static QWidget* focusIn(QWidget& window) {
    QWidget* focus = window.focusWidget();
    return focus ? focus : &window;
  }

  // A step may open a window of its own and return late, so the next look is arranged before it.
  void lookSoon() { QTimer::singleShot(1, this, &Hands::look); }
  void look() {
    lookSoon();
    QWidget* shown = QApplication::activeModalWidget();
    if (shown && gaveUp_) return shown->hide();
    if (!shown || steps_.empty()) return waited_.invalidate();
    // A window that has just come to the front may still be waiting for the one that closed.
    if (std::exchange(seen_, shown) != shown) return;
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
    gaveUp_ = true;
    while (QWidget* front = QApplication::activeModalWidget()) front->hide();
    QCoreApplication::quit();
  }

  std::deque<std::pair<QString, Step>> steps_;
  QElapsedTimer waited_;
  bool gaveUp_ = false;
  const QWidget* seen_ = nullptr;
  const char* last_ = "";
};
