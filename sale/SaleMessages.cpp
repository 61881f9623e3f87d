#include "sale/SaleMessages.h"

#include <QApplication>
#include <QKeyEvent>
#include <QTimer>

#include "shell/frmMsg.h"

namespace {

// Scanners send a character every few milliseconds; between two keys of the fastest typist there
// are 50.
constexpr int kScannerGap = 25;  // milliseconds
// Known for a scanner, it may falter before its Enter without being taken for fingers again.
constexpr int kScannerEnd = 250;

bool prints(const QKeyEvent& pressed) {
  return !pressed.text().isEmpty() && pressed.text().front().isPrint();
}

/// A message window that waits, after a printing character, whether more follow as fast as only a
/// scanner sends them: closed at once, it would leave the rest of them to the input line.
class ScanProofMessage : public frmMsg {
 public:
  explicit ScanProofMessage(QWidget* screen) : frmMsg(screen) {
    quiet_.setSingleShot(true);
    // Keys that have arrived meanwhile on a busy machine come first.
    QObject::connect(&quiet_, &QTimer::timeout, this, [this] {
      QTimer::singleShot(0, this, [this] {
        if (!quiet_.isActive()) accept();
      });
    });
  }
  /// More than the key that closed the window.
  bool scanned() const { return swallowed_ > 1; }

 protected:
  // A capital letter comes with a Shift before it.
  void pressed(const QKeyEvent& event) override {
    const bool shift = event.key() == Qt::Key_Shift;
    if (!shift && (prints(event) || swallowed_ > 0)) ++swallowed_;
    if (shift || prints(event)) return quiet_.start(scanned() ? kScannerEnd : kScannerGap);
    accept();
  }

 private:
  QTimer quiet_;
  int swallowed_ = 0;
};

/// While it lives, swallows the Enter that ends a scan.
class ScanWatch : public QObject {
 public:
  ScanWatch() { qApp->installEventFilter(this); }
  bool scanned() const { return scanned_; }

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() != QEvent::KeyPress) return false;
    const auto& key = static_cast<const QKeyEvent&>(*event);
    const bool follows = typed_ && key.timestamp() - last_ <= kScannerGap;
    if (prints(key)) {
      typed_ = true;
      last_ = key.timestamp();
    }
    const bool enter = key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
    if (!enter || !follows) return false;
    scanned_ = true;
    return true;
  }

 private:
  bool typed_ = false, scanned_ = false;
  quint64 last_ = 0;  ///< when the last character was typed
};

}  // namespace

SaleMessages::SaleMessages(QWidget* screen) : screen_(screen) {}

void SaleMessages::show(const QString& text) {
  QString shown = text;
  bool scanned = true;
  while (scanned) {
    QApplication::beep();
    ScanProofMessage message(screen_);
    message.Message(shown);
    scanned = message.scanned();
    shown = notRung();
  }
}

QString SaleMessages::notRung() {
  return tr("出现提示时扫描的商品没有录入，请重扫。");
}

void SaleMessages::box(const QString& text, const QString& title, BoxIcon icon) {
  QApplication::beep();
  const ScanWatch watch;
  messageBox(screen_, text, title, icon);
  if (watch.scanned()) show(notRung());
}

bool SaleMessages::ask(const QString& text, const QString& title, bool yesPreselected) {
  const ScanWatch watch;
  const bool yes = askYesNo(screen_, text, title, yesPreselected);
  if (watch.scanned()) show(notRung());
  return yes;
}
