#pragma once

#include <QDialog>
#include <memory>
#include <optional>

#include "saleslib/Permission.h"
#include "shell/KeyDrivenDialog.h"

class ClsMember;
class DateField;
class posMod;
class QComboBox;
class QLayout;
class QRadioButton;

/// The quick member dialog at the till: a card number that is new opens an entry form for a new
/// member; one that exists shows that member, read-only.
class frmFMember : public KeyDrivenDialog {
  Q_OBJECT

 public:
  explicit frmFMember(posMod& pos, QWidget* parent = nullptr);
  /// Shows the dialog modally.
  void init();

 private:
  void setUpControls();
  void arrange();
  QLayout* fields();
  void chainControls();

  void enableEntry(bool enabled);
  void numberEntered();
  void startMember();
  void showMember();
  void addMember();
  void store();
  QString readFigures();
  Permit balanceAgreed();
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
  DateField* DTPicker1_;
  QLineEdit* card_;
  QLineEdit* password_;
  QLabel* lblStatus_;
  QPushButton* cmdOk_;
  QPushButton* cmdCancel_;
};
