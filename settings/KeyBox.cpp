#include "settings/KeyBox.h"

#include <QKeyEvent>
#include <QPainter>
#include <QStyle>

#include "base/NumberText.h"
#include "platform/KeyName.h"
#include "platform/VirtualKey.h"

namespace {

constexpr const char* kShared = "shared";
constexpr int kAlt = 18;
constexpr int kNameMargin = 10;
constexpr int kNamePixels = 16;
constexpr QColor kNameColour(0x44, 0x55, 0x66);

}  // namespace

void markShared(QWidget& control, bool shared) {
  if (control.property(kShared).toBool() == shared) return;
  control.setProperty(kShared, shared);
  control.style()->unpolish(&control);
  control.style()->polish(&control);
}

KeyBox::KeyBox(QWidget* parent) : QLineEdit(parent) {
  // An input method would swallow the keys, the menu key would open a menu, and the cursor would
  // promise that one can type.
  setAttribute(Qt::WA_InputMethodEnabled, false);
  setContextMenuPolicy(Qt::NoContextMenu);
  setMinimumWidth(150);
}

std::optional<int> KeyBox::code() const {
  return parseWhole32(text().toStdString());
}

void KeyBox::setCode(int code) {
  setText(QString::number(code));
}

void KeyBox::setShared(bool shared) {
  markShared(*this, shared);
}

bool KeyBox::isShared() const {
  return property(kShared).toBool();
}

// No shortcut of the window may take a key away that is being defined; Alt goes to the access keys.
bool KeyBox::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride) {
    const auto* key = static_cast<QKeyEvent*>(event);
    if (!key->modifiers().testFlag(Qt::AltModifier)) event->accept();
    return true;
  }
  return QLineEdit::event(event);
}

void KeyBox::keyPressEvent(QKeyEvent* event) {
  const bool takesPart = !event->modifiers().testFlag(Qt::AltModifier) && !event->isAutoRepeat();
  if (takesPart) pressed_ = virtualKey(*event);
  event->setAccepted(!event->modifiers().testFlag(Qt::AltModifier));
}

// A key that went down elsewhere only brought the focus here (Tab, Shift+Tab, Alt and an access
// key); one that repeats has not been let go yet.
void KeyBox::keyReleaseEvent(QKeyEvent* event) {
  event->accept();
  const int key = virtualKey(*event);
  if (event->isAutoRepeat() || key != pressed_) return;
  pressed_ = 0;
  if (key == 0 || key == kAlt || key == vk::kTab) return;
  setCode(key);
  selectAll();
  emit captured();
}

void KeyBox::focusOutEvent(QFocusEvent* event) {
  pressed_ = 0;
  QLineEdit::focusOutEvent(event);
}

void KeyBox::paintEvent(QPaintEvent* event) {
  QLineEdit::paintEvent(event);
  const auto shown = code();
  if (!shown) return;
  QPainter painter(this);
  QFont small = font();
  small.setPixelSize(kNamePixels);
  painter.setFont(small);
  painter.setPen(isShared() ? QColor(Qt::red).darker() : kNameColour);
  painter.drawText(rect().adjusted(0, 0, -kNameMargin, 0), Qt::AlignRight | Qt::AlignVCenter,
                   keyName(*shown));
}
