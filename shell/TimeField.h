#pragma once

#include <QString>

#include "base/DateTime.h"
#include "shell/CheckedField.h"

/// A field for a time of day, shown as "08:30:00" and typed as parseTypedTime reads it.
class TimeField : public CheckedField {
  Q_OBJECT

 public:
  TimeField(int hour, int minute, int second, QWidget* parent = nullptr);

  /// The last time that was set, or typed and checked, on that date.
  DateTime on(const Date& date) const;
  void setTime(int hour, int minute, int second);

 protected:
  bool take(const QString& text) override;
  QString valueText() const override;
  QString refusalOf(const QString& text) const override;

 private:
  DateTime time_;  ///< of any date
};
