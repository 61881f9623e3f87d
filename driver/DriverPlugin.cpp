#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QGenericPlugin>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QRegularExpression>
#include <QSocketNotifier>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include <unistd.h>

#include <memory>

#include "Monkey.h"
#include "Screenshot.h"
#include "ShownTexts.h"

namespace {

constexpr int kWaitLimitMs = 20000;
constexpr int kPollMs = 2;

QtMessageHandler messagesBefore = nullptr;

/// The platform without a screen says of each thing that only a screen could do that it cannot.
void leaveOutMissingScreen(QtMsgType type, const QMessageLogContext& context, const QString& text) {
  if (!text.startsWith(QLatin1String("This plugin does not support")))
    messagesBefore(type, context, text);
}

/// Executes command lines from a socket or a pipe inside the till's process, one after the other:
///   key NAME       a key click in the active window (names as QKeySequence knows them)
///   type TEXT      key clicks that type a text
///   wait NAME      until the active window's objectName is NAME
///   text NAME      the text of a label or input field, of the active window if it has that name,
///                  else of another visible one
///   focus          the name of the control that has the keyboard
///   window         the name of the active window
///   settle         once the keys sent before have been delivered
///   sees TEXT      whether the active window shows that text, blanks aside; an error tells what it
///                  shows
///   shot FILE      a picture of the screen
///   monkey S N W   N random events from seed S, with the words of file W (see Monkey); answered by
///                  several lines
/// Each is answered by one line, "ok ..." or "error ...". A click is answered before it is
/// delivered, because a window that it opens only returns when that window is closed.
class Driver : public QObject {
 public:
  Driver(int in, int out) : in_(in), out_(out), notifier_(in, QSocketNotifier::Read) {
    connect(&notifier_, &QSocketNotifier::activated, this, &Driver::readCommands);
  }

 private:
  void readCommands() {
    char bytes[4096];
    const ssize_t got = ::read(in_, bytes, sizeof bytes);
    if (got <= 0) {
      notifier_.setEnabled(false);
      return;
    }
    pending_.append(bytes, got);
    for (qsizetype end; (end = pending_.indexOf('\n')) >= 0;) {
      const QString line = QString::fromUtf8(pending_.left(end));
      pending_.remove(0, end + 1);
      execute(line.section(QLatin1Char(' '), 0, 0), line.section(QLatin1Char(' '), 1));
    }
  }

  void execute(const QString& command, const QString& argument) {
    if (command == QLatin1String("key")) {
      click(argument);
    } else if (command == QLatin1String("type")) {
      type(argument);
    } else if (command == QLatin1String("wait")) {
      QElapsedTimer timer;
      timer.start();
      waitFor(argument, timer);
    } else if (command == QLatin1String("text")) {
      answerText(argument);
    } else if (command == QLatin1String("focus")) {
      const QWidget* focus = QApplication::focusWidget();
      answer(QStringLiteral("ok ") + (focus != nullptr ? focus->objectName() : QString()));
    } else if (command == QLatin1String("window")) {
      const QWidget* window = QApplication::activeWindow();
      answer(QStringLiteral("ok ") + (window != nullptr ? window->objectName() : QString()));
    } else if (command == QLatin1String("settle")) {
      QTimer::singleShot(0, this, [this] { answer(QStringLiteral("ok")); });
    } else if (command == QLatin1String("sees")) {
      answerWhetherSeen(argument);
    } else if (command == QLatin1String("shot")) {
      answer(screenshot().save(argument) ? QStringLiteral("ok")
                                         : QStringLiteral("error cannot save"));
    } else if (command == QLatin1String("monkey")) {
      letMonkeyLoose(argument);
    } else {
      answer(QStringLiteral("error unknown command"));
    }
  }

  void letMonkeyLoose(const QString& argument) {
    QFile file(argument.section(QLatin1Char(' '), 2));
    file.open(QIODevice::ReadOnly);
    const QStringList words =
        QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    monkey_ = std::make_unique<Monkey>(argument.section(QLatin1Char(' '), 0, 0).toUInt(),
                                       argument.section(QLatin1Char(' '), 1, 1).toInt(), words,
                                       [this](const QString& line) { answer(line); });
    monkey_->start();
  }

  static QWindow* activeWindow() {
    if (QWidget* window = QApplication::activeWindow()) return window->windowHandle();
    return QGuiApplication::focusWindow();
  }

  void click(const QString& name) {
    const QKeySequence keys = QKeySequence::fromString(name, QKeySequence::PortableText);
    if (keys.count() != 1 || keys[0].key() == Qt::Key_unknown) {
      answer(QStringLiteral("error unknown key"));
      return;
    }
    answer(QStringLiteral("ok"));
    queueKey(keys[0].key(), keys[0].keyboardModifiers(), {});
  }

  void type(const QString& text) {
    answer(QStringLiteral("ok"));
    for (const QChar character : text) {
      const bool ascii = character.unicode() < 128;
      queueKey(ascii ? QTest::asciiToKey(character.toLatin1()) : Qt::Key_unknown, Qt::NoModifier,
               QString(character));
    }
  }

  // Press and release are events of their own, each for the window that is active by then, and each
  // from the event loop: a press that opens a modal window returns only when that window is closed.
  void queueKey(Qt::Key key, Qt::KeyboardModifiers modifiers, const QString& text) {
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
      QTimer::singleShot(0, this, [=] {
        if (QWindow* window = activeWindow()) qt_handleKeyEvent(window, type, key, modifiers, text);
      });
    }
  }

  static QString described(const QWidget* window) {
    if (window == nullptr) return QStringLiteral("none");
    QStringList words{window->objectName()};
    for (const QLabel* label : window->findChildren<QLabel*>()) words << label->text();
    return words.join(QLatin1Char(' ')).replace(QLatin1Char('\n'), QLatin1Char(' '));
  }

  void waitFor(const QString& name, QElapsedTimer timer) {
    const QWidget* window = QApplication::activeWindow();
    if (window != nullptr && window->objectName() == name) {
      answer(QStringLiteral("ok"));
    } else if (timer.elapsed() > kWaitLimitMs) {
      answer(QStringLiteral("error the active window is ") + described(window));
    } else {
      QTimer::singleShot(kPollMs, this, [this, name, timer] { waitFor(name, timer); });
    }
  }

  void answerText(const QString& name) {
    QWidgetList windows = QApplication::topLevelWidgets();
    if (QWidget* active = QApplication::activeWindow()) windows.prepend(active);
    for (const QWidget* window : windows) {
      if (!window->isVisible()) continue;
      const QWidget* found = window->findChild<QWidget*>(name);
      QString text;
      if (const auto* label = qobject_cast<const QLabel*>(found)) text = label->text();
      if (const auto* edit = qobject_cast<const QLineEdit*>(found)) text = edit->text();
      if (found != nullptr) {
        answer(QStringLiteral("ok ") + text.replace(QLatin1Char('\n'), QLatin1Char(' ')));
        return;
      }
    }
    answer(QStringLiteral("error no such control"));
  }

  void answerWhetherSeen(QString text) {
    const QWidget* popup = QApplication::activePopupWidget();
    const QWidget* window = popup != nullptr ? popup : QApplication::activeWindow();
    const QStringList texts = window != nullptr ? shownTexts(*window) : QStringList();
    QString shown = texts.join(QLatin1Char('|'));
    shown.replace(QLatin1Char('\n'), QLatin1Char(' '));
    static const QRegularExpression blanks(QStringLiteral("\\s"));
    const bool isSeen = QString(shown).remove(blanks).contains(text.remove(blanks));
    answer(isSeen ? QStringLiteral("ok") : QStringLiteral("error ") + shown);
  }

  void answer(const QString& line) {
    const QByteArray bytes = line.toUtf8() + '\n';
    for (qsizetype sent = 0; sent < bytes.size();) {
      const ssize_t step = ::write(out_, bytes.constData() + sent, bytes.size() - sent);
      if (step <= 0) return;
      sent += step;
    }
  }

  int in_, out_;
  QSocketNotifier notifier_;
  QByteArray pending_;
  std::unique_ptr<Monkey> monkey_;
};

}  // namespace

/// What Qt loads; the argument is the socket's file descriptor, or "IN:OUT" of two pipes.
class DriverPlugin : public QGenericPlugin {
  Q_OBJECT
  Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "DriverPlugin.json")

 public:
  QObject* create(const QString&, const QString& ends) override {
    messagesBefore = qInstallMessageHandler(leaveOutMissingScreen);
    const QStringList both = ends.split(QLatin1Char(':'));
    return new Driver(both.first().toInt(), both.last().toInt());
  }
};

#include "DriverPlugin.moc"
