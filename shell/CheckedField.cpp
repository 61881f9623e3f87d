#include "shell/CheckedField.h"

#include <QFocusEvent>
#include <QTimer>

#include "shell/Modal.h"

namespace {

/// As a line edit reckons its width.
constexpr int kUsualCharacters = 17;
constexpr int kLongestText = 24;

bool isByKeyboard(Qt::FocusReason reason) {
  return reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
         reason == Qt::ShortcutFocusReason;
}

}  // namespace

CheckedField::CheckedField(QWidget* parent) : QLineEdit(parent) {
  setMaxLength(kLongestText);
}

bool CheckedField::check() {
  unsaid_ = false;
  if (takeText()) return true;
  messageBox(window(), refusalOf(text()), tr("注意"), BoxIcon::kInformation);
  setFocus();
  selectAll();
  return false;
}

bool CheckedField::takeText() {
  if (!take(text())) return false;
  showValue();
  return true;
}

void CheckedField::showValue() {
  setText(valueText());
  if (hasFocus()) selectAll();
}

QSize CheckedField::sizeHint() const {
  const QSize usual = QLineEdit::sizeHint();
  const int less = kUsualCharacters * fontMetrics().horizontalAdvance('x');
  return {usual.width() - less + fontMetrics().horizontalAdvance(valueText() + '0'),
          usual.height()};
}

void CheckedField::focusInEvent(QFocusEvent* event) {
  QLineEdit::focusInEvent(event);
  if (event->reason() != Qt::PopupFocusReason) selectAll();
}

// What is wrong is said once the key that led on has done its work: it may close the window, or ask
// for the value and hear of it then. A click says nothing: it may be on the way out.
void CheckedField::focusOutEvent(QFocusEvent* event) {
  QLineEdit::focusOutEvent(event);
  const Qt::FocusReason reason = event->reason();
  if (reason == Qt::PopupFocusReason || reason == Qt::ActiveWindowFocusReason) return;
  if (takeText() || !isByKeyboard(reason)) return;
  unsaid_ = true;
  QTimer::singleShot(0, this, [this] {
    if (unsaid_ && isVisible()) (void)check();
  });
}

void CheckedField::mouseReleaseEvent(QMouseEvent* event) {
  QLineEdit::mouseReleaseEvent(event);
  if (!hasSelectedText()) selectAll();
}
