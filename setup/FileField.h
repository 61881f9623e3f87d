#pragma once

#include <QWidget>

class QLineEdit;

/// A file's name, typed or chosen in the file dialog behind its button, which Tab and the mouse
/// reach.
class FileField : public QWidget {
  Q_OBJECT

 public:
  /// `name` is the field's.
  explicit FileField(const char* name);
  QLineEdit* line() const { return line_; }
  QString text() const;
  bool isFile() const;

 private:
  void browse();

  QLineEdit* line_;
};
