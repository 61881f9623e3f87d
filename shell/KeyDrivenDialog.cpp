#include "shell/KeyDrivenDialog.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <algorithm>
#include <utility>

#include "app/KeyBoard.h"
#include "platform/VirtualKey.h"
#include "shell/Modal.h"

KeyDrivenDialog::KeyDrivenDialog(const KeyBoard& keys, EnterKey enterKey, QWidget* parent)
    : QDialog(parent), keys_(keys), enterKey_(enterKey) {}

QLabel* KeyDrivenDialog::label(const char* name, const QString& text) {
  auto* label = new QLabel(text, this);
  label->setObjectName(name);
  return label;
}

QLineEdit* KeyDrivenDialog::field(const char* name) {
  return made(name, new QLineEdit(this));
}

QPushButton* KeyDrivenDialog::button(const char* name, const QString& text) {
  QPushButton* button = made(name, new QPushButton(text, this));
  // No button stands for the fields where Enter has a fixed meaning in each of them.
  button->setAutoDefault(enterKey_ != EnterKey::kPlain);
  onEnter(button, [button] { button->click(); });
  return button;
}

QHBoxLayout* KeyDrivenDialog::buttonRow(std::initializer_list<QPushButton*> buttons) {
  auto* row = new QHBoxLayout;
  row->setSpacing(16);
  row->addStretch();
  for (QPushButton* button : buttons) row->addWidget(button);
  return row;
}

void KeyDrivenDialog::onEnter(const QWidget* control, std::function<void()> action) {
  enterActions_[control] = std::move(action);
}

void KeyDrivenDialog::onLeaving(const QWidget* control, std::function<void()> action) {
  leaveActions_[control] = std::move(action);
}

void KeyDrivenDialog::enterLeads(const QWidget* from, QWidget* to) {
  onEnter(from, [to] { focusWhole(to); });
}

void KeyDrivenDialog::focusWhole(QWidget* control) {
  control->setFocus();
  if (auto* edit = qobject_cast<QLineEdit*>(control)) edit->selectAll();
}

void KeyDrivenDialog::cancel() {
  reject();
}

void KeyDrivenDialog::walkThrough(std::vector<QWidget*> controls) {
  walk_ = std::move(controls);
  QWidget* before = nullptr;
  for (QWidget* control : walk_) {
    if (before) QWidget::setTabOrder(before, control);
    before = control;
    // The dialog's own default button would answer to the plain Enter key from everywhere.
    if (auto* button = qobject_cast<QPushButton*>(control)) button->setAutoDefault(false);
    watch(control);
  }
}

void KeyDrivenDialog::watchAll() {
  for (QWidget* control : findChildren<QWidget*>()) {
    if (control->window() == this) control->installEventFilter(this);
  }
}

bool KeyDrivenDialog::handleKey(const QObject* watched, const QKeyEvent& event) {
  if (isLeftToControl(watched, event)) return false;
  const bool isPlain = enterKey_ == EnterKey::kPlain;
  const int key = isPlain ? virtualKey(event) : keys_.meaning(virtualKey(event));
  if (key == 0) return false;
  if (key == keys_.mEsc) {
    cancel();
    return true;
  }
  if (key == (isPlain ? vk::kEnter : keys_.mEnter)) return event.isAutoRepeat() || enter(watched);
  return walk(watched, key);
}

bool KeyDrivenDialog::isLeftToControl(const QObject* watched, const QKeyEvent& event) const {
  if (walk_.empty()) return false;
  const bool types = qobject_cast<const QLineEdit*>(watched) && !event.text().isEmpty() &&
                     event.text().front().isPrint();
  return types || event.modifiers().testFlag(Qt::AltModifier);
}

bool KeyDrivenDialog::enter(const QObject* watched) {
  if (const auto action = enterActions_.find(watched); action != enterActions_.end()) {
    action->second();
    return true;
  }
  const auto control = std::ranges::find(walk_, watched);
  if (control == walk_.end()) return false;
  auto* list = qobject_cast<QAbstractItemView*>(*control);
  if (auto* button = qobject_cast<QPushButton*>(*control)) {
    button->click();
  } else if (list && list->currentIndex().isValid()) {
    emit list->activated(list->currentIndex());
  } else {
    focusFrom(*control, 1);
  }
  return true;
}

// Lists go by the same keys themselves.
bool KeyDrivenDialog::walk(const QObject* watched, int key) {
  const auto control = std::ranges::find(walk_, watched);
  if (control == walk_.end() || (key != keys_.mUp && key != keys_.mDown)) return false;
  if (qobject_cast<QAbstractItemView*>(*control)) return false;
  const int by = key == keys_.mUp ? -1 : 1;
  if (auto* choices = qobject_cast<QComboBox*>(*control)) {
    choices->setCurrentIndex(std::clamp(choices->currentIndex() + by, 0, choices->count() - 1));
  } else {
    focusFrom(*control, by);
  }
  return true;
}

void KeyDrivenDialog::focusFrom(const QObject* control, int by) {
  const auto count = std::ssize(walk_);
  auto at = std::ranges::find(walk_, control) - walk_.begin();
  do {
    at = (at + by + count) % count;
  } while (!walk_[static_cast<std::size_t>(at)]->isEnabled() &&
           walk_[static_cast<std::size_t>(at)] != control);
  walk_[static_cast<std::size_t>(at)]->setFocus(Qt::TabFocusReason);
}

bool KeyDrivenDialog::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress && handleKey(watched, *static_cast<QKeyEvent*>(event))) {
    return true;
  }
  if (event->type() == QEvent::FocusOut) {
    if (const auto action = leaveActions_.find(watched); action != leaveActions_.end()) {
      action->second();
    }
  }
  return QDialog::eventFilter(watched, event);
}

// The dialog's own handling would close it on the plain Enter and Esc.
void KeyDrivenDialog::keyPressEvent(QKeyEvent* event) {
  handleKey(this, *event);
}

void KeyDrivenDialog::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  centreOnScreen(*this);
  if (first_ != nullptr) focusWhole(first_);
}

void KeyDrivenDialog::watch(QWidget* control) {
  control->installEventFilter(this);
  if (first_ == nullptr) first_ = control;
}
