#include "Monkey.h"

#include <QApplication>
#include <QLabel>
#include <QTest>
#include <QTimer>
#include <QWindow>
#include <string_view>
#include <vector>

#include "MonkeyWords.h"

namespace {

constexpr int kReportEvery = 100;
/// How long the monkey plays before it goes home, and how long that may take.
constexpr int kSpell = 1500;
constexpr int kLongestWayHome = 60000;
constexpr int kLowNumbers = 60;
constexpr int kDoubleClickGap = 1000;  // milliseconds that keep two clicks from being a double one

constexpr Qt::Key kKeys[] = {
    Qt::Key_Return, Qt::Key_Return, Qt::Key_Return,  Qt::Key_Enter,    Qt::Key_Escape,
    Qt::Key_Tab,    Qt::Key_Tab,    Qt::Key_Backtab, Qt::Key_Space,    Qt::Key_Up,
    Qt::Key_Up,     Qt::Key_Down,   Qt::Key_Down,    Qt::Key_Left,     Qt::Key_Right,
    Qt::Key_Home,   Qt::Key_End,    Qt::Key_PageUp,  Qt::Key_PageDown, Qt::Key_Backspace,
    Qt::Key_Delete, Qt::Key_Menu,   Qt::Key_Insert,  Qt::Key_F1,       Qt::Key_F2,
    Qt::Key_F3,     Qt::Key_F4,     Qt::Key_F5,      Qt::Key_F6,       Qt::Key_F7,
    Qt::Key_F8,     Qt::Key_F9,     Qt::Key_F10,     Qt::Key_F11,      Qt::Key_F12};

constexpr Qt::Key kWayHome[] = {Qt::Key_Escape, Qt::Key_Escape, Qt::Key_Escape, Qt::Key_Return,
                                Qt::Key_Return, Qt::Key_Tab,    Qt::Key_Space,  Qt::Key_F12,
                                Qt::Key_F12,    Qt::Key_F6,     Qt::Key_Down,   Qt::Key_F4};

QWidget* front() {
  if (QWidget* popup = QApplication::activePopupWidget()) return popup;
  return QApplication::activeWindow();
}

/// What stands on the screen, for the report of a window that can't be left.
QString standing() {
  QStringList open;
  for (const QWindow* window : QGuiApplication::topLevelWindows()) {
    if (window->isVisible()) open << window->objectName();
  }
  const QWindow* keyboard = QGuiApplication::focusWindow();
  QStringList texts;
  if (const QWidget* window = front()) {
    for (const QLabel* label : window->findChildren<QLabel*>()) texts << label->text();
  }
  return QStringLiteral("open: %1; keyboard: %2; texts: %3")
      .arg(open.join(QLatin1Char(' ')), keyboard ? keyboard->objectName() : QString(),
           texts.join(QLatin1Char('|')));
}

}  // namespace

Monkey::Monkey(unsigned seed, int events, QStringList words, Tell tell)
    : random_(seed), events_(events), words_(std::move(words)), tell_(std::move(tell)) {
  words_ << monkeyTexts();
}

void Monkey::start() {
  QTimer::singleShot(0, this, &Monkey::next);
}

// The next event is asked for before this one is delivered: one that opens a modal window returns
// only when that window is closed.
void Monkey::next() {
  if (ended_) return;
  QTimer::singleShot(0, this, &Monkey::next);
  if (!queue_.empty()) {
    const auto deliver = std::move(queue_.front());
    queue_.pop_front();
    deliver();
    return;
  }
  if (done_ >= events_ && atHome()) return end(QStringLiteral("ok %1").arg(done_));
  if (++done_ % kReportEvery == 0) tell_(QStringLiteral("at %1").arg(done_));
  if (leaving_ == 0 && (done_ % kSpell == 0 || done_ > events_)) leaving_ = 1;
  leaving_ > 0 ? goHome() : playAround();
}

void Monkey::end(const QString& line) {
  ended_ = true;
  tell_(line);
}

bool Monkey::atHome() const {
  const QWidget* window = QApplication::activeWindow();
  return window != nullptr && window->objectName() == QLatin1String("frmMenu") &&
         window->parentWidget() != nullptr &&
         window->parentWidget()->objectName() == QLatin1String("frmMain");
}

void Monkey::playAround() {
  const QWidget* window = QApplication::activeWindow();
  const QString name = window != nullptr ? window->objectName() : QString();
  const bool isNew = name != window_;
  window_ = name;
  if (name == QLatin1String("frmLogin") && isNew && chance(85)) return logIn();
  if (atHome() && chance(90)) return chooseFromMainMenu();
  // On arrival the focus is still where the words belong.
  if (chance(isNew ? 60 : 12) && speak(name)) return;
  const int dice = below(1000);
  if (dice < 550) return randomKey();
  if (dice < 800) return randomText();
  if (dice < 996) return randomMouse();
  closeWindow();
}

// By keys and clicks alone: not every till has a window manager that closes windows. With
// everything that leaves a window, and with everything that may leave it because the monkey has
// changed the meaning of the keys: held bills keep the sale screen open until the keys that recall
// and void them are found, and an entry near the end of its menu may be the only door.
void Monkey::goHome() {
  if (atHome()) {
    leaving_ = 0;
    return;
  }
  if (++leaving_ > kLongestWayHome) {
    const QWidget* window = front();
    const QString name = window != nullptr ? window->objectName() : QStringLiteral("no window");
    return end(QStringLiteral("error cannot leave %1, event %2 (%3)")
                   .arg(name)
                   .arg(done_)
                   .arg(standing()));
  }
  const int dice = below(100);
  if (dice < 5) return leaveByMenu();
  if (dice < 65) return key(one(kWayHome));
  if (dice < 75) return chance(20) ? key(one(kKeys)) : type(QString(QChar(' ' + below(95))));
  if (dice < 80) return type(QString(QChar('0' + below(75))));
  randomMouse();
}

void Monkey::leaveByMenu() {
  key(Qt::Key_Menu);
  for (int entries = 1 + below(2); entries > 0; --entries) key(Qt::Key_Up);
  key(Qt::Key_Return);
}

void Monkey::logIn() {
  const QString operatorNumber = QString::number(1 + below(2));
  type(operatorNumber);
  key(Qt::Key_Return);
  type(operatorNumber.repeated(3));
  key(Qt::Key_Return);
}

// Most ways out of here end the program.
void Monkey::chooseFromMainMenu() {
  const int dice = below(100);
  if (dice < 55) return key(Qt::Key_Down);
  if (dice < 65) return key(Qt::Key_Menu);
  key(Qt::Key_Return);
}

void Monkey::randomKey() {
  Qt::KeyboardModifiers modifiers;
  if (chance(4)) modifiers |= Qt::ControlModifier;
  if (chance(4)) modifiers |= Qt::ShiftModifier;
  if (chance(3)) modifiers |= Qt::AltModifier;
  if (atHome() && chance(90)) return key(Qt::Key_Up);
  if (chance(80)) return key(one(kKeys), modifiers);
  const char character = static_cast<char>(' ' + below(95));
  if (character == '/') return;
  const auto code = QTest::asciiToKey(character);
  key(code, modifiers,
      modifiers & Qt::ControlModifier ? QString() : QString(QLatin1Char(character)));
}

void Monkey::randomText() {
  QString text = one(words_);
  if (chance(2)) text = text.repeated(1 + below(200));
  type(text);
  if (chance(75)) key(Qt::Key_Return);
}

/// False when nothing makes sense in that window.
bool Monkey::speak(const QString& window) {
  const std::vector<const char*> known = monkeyPhrases(window);
  if (known.empty()) return false;
  for (const char each : std::string_view(one(known))) {
    if (each == '#') {
      type(QString::number(1 + below(kLowNumbers)));
    } else if (each == '*') {
      type(one(words_));
    } else if (each == 'v') {
      key(Qt::Key_Down);
    } else {
      type(QString(QLatin1Char(each)));
    }
  }
  return true;
}

// At a control more often than anywhere.
void Monkey::randomMouse() {
  QWidget* window = front();
  if (window == nullptr) return;
  QPoint place(below(qMax(1, window->width())), below(qMax(1, window->height())));
  QWidgetList controls;
  for (QWidget* each : window->findChildren<QWidget*>()) {
    if (each->isVisible() && each->isEnabled() && each->window() == window) controls << each;
  }
  if (!controls.isEmpty() && chance(75)) {
    const QWidget* control = one(controls);
    place = control->mapTo(
        window, QPoint(below(qMax(1, control->width())), below(qMax(1, control->height()))));
  }
  const Qt::MouseButton button = chance(90) ? Qt::LeftButton : Qt::RightButton;
  clock_ += kDoubleClickGap;
  mouse(QEvent::MouseMove, place, Qt::NoButton);
  for (int clicks = chance(10) ? 2 : 1; clicks > 0; --clicks) {
    mouse(QEvent::MouseButtonPress, place, button);
    mouse(QEvent::MouseButtonRelease, place, button);
  }
}

// As a window manager does it.
void Monkey::closeWindow() {
  if (atHome() || front() == nullptr) return;
  front()->close();
}

void Monkey::key(int key, Qt::KeyboardModifiers modifiers, const QString& text) {
  QString typed = text;
  if (key == Qt::Key_Space && typed.isEmpty()) typed = QStringLiteral(" ");
  for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
    queue_.push_back([=] {
      const QWidget* window = front();
      QWindow* target = window != nullptr ? window->windowHandle() : QGuiApplication::focusWindow();
      if (target != nullptr) {
        qt_handleKeyEvent(target, type, static_cast<Qt::Key>(key), modifiers, typed);
      }
    });
  }
}

void Monkey::type(const QString& text) {
  for (const QChar character : text) {
    if (character == QLatin1Char('\n') || character == QLatin1Char('\t')) {
      key(character == QLatin1Char('\n') ? Qt::Key_Return : Qt::Key_Tab);
      continue;
    }
    const bool ascii = character.unicode() < 128;
    key(ascii ? QTest::asciiToKey(character.toLatin1()) : Qt::Key_unknown, {}, QString(character));
  }
}

void Monkey::mouse(QEvent::Type type, QPoint place, Qt::MouseButton button) {
  queue_.push_back([=, time = ++clock_] {
    const QWidget* window = front();
    if (window == nullptr || window->windowHandle() == nullptr) return;
    const Qt::MouseButtons state =
        type == QEvent::MouseButtonPress ? Qt::MouseButtons(button) : Qt::NoButton;
    qt_handleMouseEvent(window->windowHandle(), place, window->mapToGlobal(place), state, button,
                        type, Qt::NoModifier, time);
  });
}
