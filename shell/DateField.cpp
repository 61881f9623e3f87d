#include "shell/DateField.h"

#include <QKeyEvent>

#include "platform/QtText.h"

DateField::DateField(QWidget* parent) : CheckedField(parent) {
  showValue();
}

void DateField::setDate(const Date& date) {
  date_ = date;
  showValue();
}

bool DateField::take(const QString& text) {
  const auto typed = parseTypedDate(text.toStdString(), date_.year);
  if (typed) date_ = *typed;
  return typed.has_value();
}

QString DateField::valueText() const {
  return qtText(dateText(date_));
}

QString DateField::refusalOf(const QString& text) const {
  return tr("没有“%1”这个日期！请按 2026-11-22 或 20261122 的样子输入。").arg(text);
}

void DateField::keyPressEvent(QKeyEvent* event) {
  const bool isUp = event->key() == Qt::Key_Up;
  if (!isUp && event->key() != Qt::Key_Down) return CheckedField::keyPressEvent(event);
  if (take(text())) setDate(plusDays(date_, isUp ? 1 : -1));
}
