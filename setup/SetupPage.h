#pragma once

#include <QString>
#include <QWidget>
#include <functional>
#include <map>
#include <vector>

#include "app/ClsPosSet.h"
#include "shop/NewShop.h"

class QComboBox;
class QGridLayout;
class QLabel;
class QLineEdit;

/// All that is answered at the first start: what goes into the data file, and this till's settings.
struct SetupAnswers {
  NewShop shop;
  ClsPosSet till;
};

/// One page of questions.
class SetupPage : public QWidget {
  Q_OBJECT

 public:
  virtual QString title() const = 0;
  /// What asks, in the order of the eye.
  const std::vector<QWidget*>& controls() const { return controls_; }
  /// What Enter does in those where it does not just go on.
  using EnterActions = std::map<const QWidget*, std::function<void()>>;
  const EnterActions& enterActions() const { return enterActions_; }
  /// The page comes to the front.
  virtual void enter() {}
  /// Takes what was answered. An empty text, or why the page cannot be left, a sentence; `wrong` is
  /// then the control to go back to.
  [[nodiscard]] virtual QString take() = 0;
  QWidget* wrong() const { return wrong_; }
  /// What room the questions leave is below them.
  void keepAtTop();

 protected:
  explicit SetupPage(SetupAnswers& answers);

  /// Makes a control with its caption in a grid's next row; the grid is the page's own.
  QLineEdit* field(const char* name, const QString& caption);
  QComboBox* choice(const char* name, const QString& caption, const QStringList& entries);
  void addRow(const QString& caption, QWidget* content);
  QLabel* note(const QString& text);
  template <class Control>
  Control* asks(const char* name, Control* control) {
    control->setObjectName(name);
    controls_.push_back(control);
    return control;
  }
  void onEnter(const QWidget* control, std::function<void()> action) {
    enterActions_[control] = std::move(action);
  }
  QString refuse(QWidget* control, const QString& why);
  QGridLayout& grid() { return *grid_; }

  SetupAnswers& answers_;

 private:
  QGridLayout* grid_;
  QWidget* wrong_ = nullptr;
  std::vector<QWidget*> controls_;
  EnterActions enterActions_;
};
