#pragma once

#include <QLineEdit>

/// A field for one value that has its own form, such as a date. What is typed replaces the whole
/// text. A text that is no such value is said when the keyboard leaves the field, and stays,
/// selected, for the next typing to replace it; one that is takes the value's form.
class CheckedField : public QLineEdit {
  Q_OBJECT

 public:
  /// Whether the text is a value. Else it is said, and the field has the focus. To be asked before
  /// the value is used: after a click elsewhere nothing was said yet.
  [[nodiscard]] bool check();

  QSize sizeHint() const override;

 protected:
  explicit CheckedField(QWidget* parent);

  /// Keeps the value that the text stands for. False when it is none.
  virtual bool take(const QString& text) = 0;
  virtual QString valueText() const = 0;
  /// What is said of a text that is no value.
  virtual QString refusalOf(const QString& text) const = 0;
  void showValue();

  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  bool takeText();

  bool unsaid_ = false;  ///< the keyboard has left the field with a text that is no value
};
