#pragma once

#include <QCoreApplication>
#include <QString>
#include <functional>
#include <map>
#include <utility>
#include <vector>

#include "checkout/CashDrawer.h"
#include "checkout/Checkout.h"
#include "checkout/CustomerDisplay.h"
#include "checkout/LineReceipt.h"
#include "checkout/SaleState.h"
#include "sale/BillLines.h"
#include "sale/EditedCell.h"
#include "sale/HeldBills.h"
#include "sale/ItemLookup.h"
#include "sale/KeyDispatch.h"
#include "sale/MemberCard.h"

class posMod;
class SaleScreen;
struct clsQk;

/// The sale screen without its window: the state, everything that works on it, and what each key
/// and each entry of the function menu does. One session lasts from the screen's opening to its
/// closing.
class SaleSession {
  Q_DECLARE_TR_FUNCTIONS(SaleSession)

 public:
  /// Screens that the sale screen opens modally, by name: "addmen", "search", "topup", "color",
  /// "unsell". A name that is missing has no key and no menu entry.
  using Openers = std::map<QString, std::function<void()>>;

  SaleSession(posMod& pos, SaleScreen& screen, Openers openers);

  /// What the screen does when it opens, after its widgets stand: settings, devices, clearing up
  /// after an earlier run, clock check, first bill. False when the program is to end. Needs an
  /// operator. Throws StoreError.
  [[nodiscard]] bool open();
  /// ExitSale: refused, with a message, while anything is pending. Else it closes the devices,
  /// drops the empty bill, and left() is true from then on.
  void exit();
  bool left() const { return left_; }

  /// A key on the input line, as virtual-key code. True when the key was used up; false leaves it
  /// to the text box. Shift, Ctrl and Alt alone are no key press: the shown value stays for the key
  /// that follows.
  [[nodiscard]] bool key(int code);
  /// Whether a key that is held down may repeat: typing and the arrows may, a command or a quick
  /// key may not, or a key held too long would settle a bill or ring an item ten times.
  [[nodiscard]] bool mayRepeat(int code) const;
  /// A text that an input method commits comes instead of a key press.
  void textComing();
  /// A click on a row of the list: the selection returns to the entry row.
  void listClicked();

  /// An entry of the function menu, by its key; an unknown key does nothing.
  void menu(const QString& entry);
  /// The function menu's entries that have an action: key and caption.
  std::vector<std::pair<QString, QString>> menuEntries() const;

  SaleState state;

 private:
  struct MenuCommand {
    QString key;
    QString caption;  ///< empty: not listed
    std::function<void()> run;
  };

  void loadSettings();
  void voidOpenBills();
  bool clockIsBehind() const;
  QString lastBillDated() const;
  void fillCommands();
  void fillMenu();
  void addOpener(int KeyBoard::*key, const QString& screen);
  const clsQk* quickKeyFor(int code) const;
  bool quickKey(int code);
  void toggleLinePrint();

  posMod& pos_;
  SaleScreen& screen_;
  Openers openers_;
  CustomerDisplay display_;
  CashDrawer drawer_;
  LineReceipt receipt_;
  Checkout checkout_;
  EditedCell cell_;
  ItemLookup lookup_;
  BillLines lines_;
  MemberCard memberCard_;
  HeldBills held_;
  std::vector<KeyCommand> commands_;  ///< in the order that decides ties
  std::vector<MenuCommand> menu_;
  bool left_ = false;
};
