#pragma once

#include <QDialog>
#include <optional>
#include <string>

#include "base/Currency.h"
#include "saleslib/TopUpBooks.h"
#include "shell/KeyDrivenDialog.h"

class posMod;
class QLayout;

/// Loads money onto a member's stored-value card and prints a slip: the card, what the customer
/// pays, what the card is credited with.
class cardStored : public KeyDrivenDialog {
  Q_OBJECT

 public:
  explicit cardStored(posMod& pos, QWidget* parent = nullptr);

 private:
  QLineEdit* figure(const char* name);
  void arrange();
  QLayout* fields();
  void setUpEnter();

  bool handleKey(const QObject* watched, const QKeyEvent& event) override;
  void askForCard();
  void findCard();
  void showCard(const StoredCard& card);
  std::optional<Currency> balanceAfter() const;
  std::optional<TopUp> entered();
  void store();
  bool load(const TopUp& topUp);
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
