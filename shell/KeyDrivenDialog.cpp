#include "shell/KeyDrivenDialog.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
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

bool KeyDrivenDialog::handleKey(const QObject* watched, const QKeyEvent& event) {
  const bool isPlain = enterKey_ == EnterKey::kPlain;
  const int key = isPlain ? virtualKey(event) : keys_.meaning(virtualKey(event));
  if (key == 0) return false;
  if (key == keys_.mEsc) {
    cancel();
    return true;
  }
  if (key != (isPlain ? vk::kEnter : keys_.mEnter)) return false;
  if (event.isAutoRepeat()) return true;
  const auto action = enterActions_.find(watched);
  if (action == enterActions_.end()) return false;
  action->second();
  return true;
}

bool KeyDrivenDialog::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress && handleKey(watched, *static_cast<QKeyEvent*>(event))) {
    return true;
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
