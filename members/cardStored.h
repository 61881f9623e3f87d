#pragma once

#include <QDialog>
#include <optional>
#include <string>

#include "base/Currency.h"
#include "members/TopUp.h"

class posMod;
class QKeyEvent;
class QLabel;
class QLayout;
class QLineEdit;
class QPushButton;

/// Loads money onto a member's stored-value card and prints a slip: the card, what the customer
/// pays, what the card is credited with.
class cardStored : public QDialog {
  Q_OBJECT

 public:
  explicit cardStored(posMod& pos, QWidget* parent = nullptr);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  QLabel* label(const char* name, const QString& text);
  QLineEdit* field(const char* name);
  QLineEdit* figure(const char* name);
  QPushButton* button(const char* name, const QString& text);
  void arrange();
  QLayout* fields();
  QLayout* buttons();

  /// True when the key was used up.
  bool handleKey(const QObject* watched, const QKeyEvent& event);
  bool enter(const QObject* watched);
  void askForCard();
  void findCard();
  std::optional<Currency> balanceAfter() const;
  std::optional<TopUp> entered();
  void store();
  void printSlip();

  posMod& pos_;
  QLineEdit* txtBh_;
  QLineEdit* txtName_;
  QLineEdit* zklb_;
  QLineEdit* beforeMoney_;
  QLineEdit* inMoney_;
  QLineEdit* addMoney_;
  QLineEdit* afterMoney_;
  QLineEdit* txtbz_;
  QPushButton* cmdOk2_;
  QPushButton* cmdCancel_;
  std::string cardFound_;  ///< the number whose balance is shown; empty before a card was found
};
