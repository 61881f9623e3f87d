#pragma once

#include <QDialog>
#include <functional>
#include <initializer_list>
#include <map>

class KeyBoard;
class QHBoxLayout;
class QKeyEvent;
class QLabel;
class QLineEdit;
class QPushButton;

/// A dialog for the mapped keys. It sees a key before the control that has the focus does: a mapped
/// key may well be a letter or a figure. The mapped Esc cancels, and Enter does what was said of
/// the control it is pressed in; held down, it is one press, so that it does not run through the
/// fields by itself. The plain Enter and Esc have no other meaning. It is shown in the middle of
/// its screen, with the focus in the control that was made first.
class KeyDrivenDialog : public QDialog {
  Q_OBJECT

 public:
  /// Which key is Enter here: the one of the keyboard map, for which the plain Enter stands too, or
  /// the plain one alone.
  enum class EnterKey { kMapped, kPlain };

 protected:
  KeyDrivenDialog(const KeyBoard& keys, EnterKey enterKey, QWidget* parent);

  /// The controls are made in the order of the Tab key.
  template <class Control>
  Control* made(const char* name, Control* control) {
    control->setObjectName(name);
    watch(control);
    return control;
  }
  QLabel* label(const char* name, const QString& text);
  QLineEdit* field(const char* name);
  /// Enter clicks it.
  QPushButton* button(const char* name, const QString& text);
  /// At the right of its row.
  static QHBoxLayout* buttonRow(std::initializer_list<QPushButton*> buttons);

  void onEnter(const QWidget* control, std::function<void()> action);
  /// The focus goes on to the other control, and a text there is selected.
  void enterLeads(const QWidget* from, QWidget* to);
  static void focusWhole(QWidget* control);

  /// What the mapped Esc does.
  virtual void cancel();
  /// True when the key was used up. `watched` is where it was pressed.
  virtual bool handleKey(const QObject* watched, const QKeyEvent& event);
  bool eventFilter(QObject* watched, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  void watch(QWidget* control);

  const KeyBoard& keys_;
  EnterKey enterKey_;
  QWidget* first_ = nullptr;
  std::map<const QObject*, std::function<void()>> enterActions_;
};
