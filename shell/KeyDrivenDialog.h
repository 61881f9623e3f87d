#pragma once

#include <QDialog>
#include <functional>
#include <initializer_list>
#include <map>
#include <vector>

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
/// its screen, with the focus in the control that was made first. A form whose keys mean the same
/// wherever the focus is watches all its controls and says in handleKey what they mean.
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
  /// What is done when the focus leaves the control, to another or with the window.
  void onLeaving(const QWidget* control, std::function<void()> action);
  /// The focus goes on to the other control, and a text there is selected.
  void enterLeads(const QWidget* from, QWidget* to);
  static void focusWhole(QWidget* control);
  /// Lets the dialog be worked without Tab. Up and Down walk through these controls and choose in
  /// drop-down lists; Enter presses a button, chooses a row of a list, and goes on from any other.
  /// In a text field a key that types a character types it. The controls are in the order of the
  /// eye, which becomes that of the Tab key.
  void walkThrough(std::vector<QWidget*> controls);
  /// Sees the keys of every control that the dialog has by now.
  void watchAll();

  const KeyBoard& keys() const { return keys_; }
  /// What the mapped Esc does.
  virtual void cancel();
  /// True when the key was used up. `watched` is where it was pressed.
  virtual bool handleKey(const QObject* watched, const QKeyEvent& event);
  bool eventFilter(QObject* watched, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  void watch(QWidget* control);
  bool isLeftToControl(const QObject* watched, const QKeyEvent& event) const;
  bool enter(const QObject* watched);
  bool walk(const QObject* watched, int key);
  void focusFrom(const QObject* control, int by);

  const KeyBoard& keys_;
  EnterKey enterKey_;
  QWidget* first_ = nullptr;
  std::map<const QObject*, std::function<void()>> enterActions_, leaveActions_;
  std::vector<QWidget*> walk_;  ///< the controls to walk through, if any
};
