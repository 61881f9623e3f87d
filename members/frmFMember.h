#pragma once

#include <QDialog>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

class ClsMember;
class posMod;
class QComboBox;
class QDateEdit;
class QKeyEvent;
class QLabel;
class QLayout;
class QLineEdit;
class QPushButton;
class QRadioButton;

/// The quick member dialog at the till: a card number that is new opens an entry form for a new
/// member; one that exists shows that member, read-only.
class frmFMember : public QDialog {
  Q_OBJECT

 public:
  explicit frmFMember(posMod& pos, QWidget* parent = nullptr);
  /// Shows the dialog modally.
  void init();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  template <class Control>
  Control* made(const char* name, Control* control);
  QLabel* label(const char* name, const QString& text);
  void setUpControls();
  void arrange();
  QLayout* fields();
  QLayout* buttons();
  void chainControls();

  /// True when the key was used up.
  bool handleKey(QObject* watched, const QKeyEvent& event);
  bool enter(QObject* watched);
  void enableEntry(bool enabled);
  void numberEntered();
  void startMember();
  void showMember();
  void addMember();
  void store();
  QString readFigures();
  std::optional<double> classRate() const;
  void report(const QString& text);

  posMod& pos_;
  std::shared_ptr<ClsMember> member_;  ///< none until a number has been looked up
  QLineEdit* txtBh_;
  QLabel* Label10_;
  QLineEdit* txtName_;
  QLineEdit* txtOld_;
  QRadioButton* OptBoy_;
  QRadioButton* OptGirl_;
  QLineEdit* txtAddress_;
  QLineEdit* txtPostcode_;
  QLineEdit* txtPhone_;
  QLineEdit* txtOther_;
  QComboBox* zklb2_;
  QDateEdit* DTPicker1_;
  QLineEdit* card_;
  QLineEdit* password_;
  QLabel* lblStatus_;
  QPushButton* cmdOk_;
  QPushButton* cmdCancel_;
  std::vector<std::pair<QWidget*, QWidget*>> enterChain_;  ///< Enter in the first: to the second
};
