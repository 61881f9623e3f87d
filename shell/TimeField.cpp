#include "shell/TimeField.h"

#include "platform/QtText.h"

TimeField::TimeField(int hour, int minute, int second, QWidget* parent) : CheckedField(parent) {
  setTime(hour, minute, second);
}

DateTime TimeField::on(const Date& date) const {
  return {date, time_.hour, time_.minute, time_.second};
}

void TimeField::setTime(int hour, int minute, int second) {
  time_ = {{}, hour, minute, second};
  showValue();
}

bool TimeField::take(const QString& text) {
  const auto typed = parseTypedTime(text.toStdString(), time_.date);
  if (typed) time_ = *typed;
  return typed.has_value();
}

QString TimeField::valueText() const {
  return qtText(longTime(time_));
}

QString TimeField::refusalOf(const QString& text) const {
  return tr("没有“%1”这个时间！请按 08:30:00 或 083000 的样子输入。").arg(text);
}
