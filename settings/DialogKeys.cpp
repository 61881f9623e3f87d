#include "settings/DialogKeys.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QDialog>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <algorithm>
#include <utility>

#include "app/KeyBoard.h"
#include "platform/VirtualKey.h"
#include "settings/KeyBox.h"

namespace {

bool typesCharacter(const QWidget* control, const QKeyEvent& event) {
  return qobject_cast<const QLineEdit*>(control) && !event.text().isEmpty() &&
         event.text().front().isPrint();
}

}  // namespace

DialogKeys::DialogKeys(const KeyBoard& keys, QDialog* dialog, std::vector<QWidget*> controls)
    : QObject(dialog), keys_(keys), dialog_(dialog), controls_(std::move(controls)) {
  QWidget* before = nullptr;
  for (QWidget* control : controls_) {
    if (before) QWidget::setTabOrder(before, control);
    before = control;
    // The dialog's own default button would answer to the plain Enter key from everywhere.
    if (auto* button = qobject_cast<QPushButton*>(control)) button->setAutoDefault(false);
    // A key box takes every key for itself.
    if (!qobject_cast<KeyBox*>(control)) control->installEventFilter(this);
  }
  controls_.front()->setFocus();
}

bool DialogKeys::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return false;
  return handleKey(static_cast<QWidget*>(watched), *static_cast<QKeyEvent*>(event));
}

bool DialogKeys::handleKey(QWidget* control, const QKeyEvent& event) {
  if (event.modifiers().testFlag(Qt::AltModifier) || typesCharacter(control, event)) return false;
  const int pressed = virtualKey(event);
  const bool inList = qobject_cast<QAbstractItemView*>(control) != nullptr;
  const int key = keys_.meaning(pressed);
  if (key == 0) return pressed != 0;
  if (key == keys_.mEsc) {
    dialog_->reject();
  } else if (key == keys_.mEnter) {
    confirm(control);
  } else if (key == keys_.mUp && !inList) {
    step(control, -1);
  } else if (key == keys_.mDown && !inList) {
    step(control, 1);
  } else {
    // Otherwise the dialog would take the plain Esc key, whatever is mapped.
    return pressed == vk::kEscape;
  }
  return true;
}

void DialogKeys::confirm(QWidget* control) {
  if (auto* button = qobject_cast<QPushButton*>(control)) {
    button->click();
  } else if (auto* list = qobject_cast<QAbstractItemView*>(control);
             list && list->currentIndex().isValid()) {
    emit list->activated(list->currentIndex());
  } else {
    focusFrom(control, 1);
  }
}

void DialogKeys::step(QWidget* control, int by) {
  if (auto* choices = qobject_cast<QComboBox*>(control)) {
    choices->setCurrentIndex(std::clamp(choices->currentIndex() + by, 0, choices->count() - 1));
  } else {
    focusFrom(control, by);
  }
}

void DialogKeys::focusFrom(QWidget* control, int by) {
  const auto count = static_cast<std::ptrdiff_t>(controls_.size());
  const auto at = std::ranges::find(controls_, control) - controls_.begin();
  controls_[static_cast<std::size_t>((at + by + count) % count)]->setFocus(Qt::TabFocusReason);
}
