#pragma once

#include <QDialog>

class posMod;
class QKeyEvent;
class QLineEdit;

/// An operator changes his own password: his number, the old password, the new one. Needs nobody
/// logged in; after a change nobody is.
class frmEditPwd : public QDialog {
  Q_OBJECT

 public:
  explicit frmEditPwd(posMod& pos, QWidget* parent = nullptr);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  QLineEdit* field(const QString& name);
  /// True when the key did something.
  bool handleKey(const QKeyEvent& event);
  bool enter();
  void change();

  posMod& pos_;
  QLineEdit* txtNumber_;
  QLineEdit* txtPassword_;
  QLineEdit* txtNewPwd_;
};
