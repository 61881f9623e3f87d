#pragma once

#include <QString>

#include "base/DateTime.h"
#include "shell/CheckedField.h"

/// A field for a date, shown as "2026-11-22" and typed as parseTypedDate reads it; without a year
/// it is in the year of the date before. The keys Up and Down lead to the next day and the day
/// before.
class DateField : public CheckedField {
  Q_OBJECT

 public:
  explicit DateField(QWidget* parent = nullptr);

  /// The last date that was set, or typed and checked.
  const Date& date() const { return date_; }
  void setDate(const Date& date);

 protected:
  bool take(const QString& text) override;
  QString valueText() const override;
  QString refusalOf(const QString& text) const override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  Date date_;
};
