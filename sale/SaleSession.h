#pragma once

#include <QCoreApplication>
#include <QString>
#include <functional>
#include <map>
#include <optional>
#include <utility>
#include <vector>

#include "sale/BillLines.h"
#include "sale/Checkout.h"
#include "sale/HeldBills.h"
#include "sale/KeyDispatch.h"
#include "sale/MemberCard.h"
#include "sale/Sale.h"
#include "sale/SaleDevices.h"
#include "sale/SaleScreen.h"

class posMod;
struct clsQk;

/// The sale screen without its window: the state, everything that works on it, and what each key
/// and each entry of the function menu does. One session lasts from the screen's opening to its
/// closing.
class SaleSession {
  Q_DECLARE_TR_FUNCTIONS(SaleSession)

 public:
  /// Screens that the sale screen opens modally, by name: "addmen", "search", "topup", "color",
  /// "help". A name that is missing has no key and no menu entry.
  struct Opener {
    std::function<void()> open;
    std::optional<Right> right = {};  ///< needed to open it
  };
  using Openers = std::map<QString, Opener>;

  /// Needs an operator logged in (ensure).
  SaleSession(posMod& pos, SaleScreen& screen, Openers openers);

  /// What the screen does when it opens, after its widgets stand: settings, devices, clearing up
  /// after an earlier run, clock check, first bill. False when the program is to end. Throws
  /// StoreError.
  [[nodiscard]] bool open();
  /// ExitSale: refused, with a message, while anything is pending. Else it closes the devices,
  /// drops the empty bill, and left() is true from then on.
  void exit();
  bool left() const { return left_; }

  /// A key on the input line, as virtual-key code, and the text that stands there. True when the
  /// key was used up, and the screen shows what came of it; false leaves it to the text box. Shift,
  /// Ctrl and Alt alone are no key press: the shown value stays for the key that follows.
  [[nodiscard]] bool key(int code, const QString& text);
  /// Whether a key that is held down may repeat: typing and the arrows may, a command or a quick
  /// key may not, or a key held too long would settle a bill or ring an item ten times.
  [[nodiscard]] bool mayRepeat(int code, const QString& text) const;
  /// A text that an input method commits comes instead of a key press, to that text.
  void textComing(const QString& text);
  /// A click on a row of the list: the selection returns to the entry row.
  void listClicked();

  /// An entry of the function menu, by its key; an unknown key does nothing.
  void menu(const QString& entry);
  /// The function menu's entries: caption and key, in their order.
  using Entries = std::vector<std::pair<QString, QString>>;
  static Entries allMenuEntries();
  /// Those that have an action.
  Entries menuEntries() const;

  const Sale& sale() const { return sale_; }

 private:
  bool clockIsBehind() const;
  QString lastBillDated() const;
  void fillCommands();
  void fillMenu();
  void addOpener(int KeyBoard::*key, const QString& screen);
  [[nodiscard]] bool open(const Opener& opener);
  [[nodiscard]] bool allowed(Right right, const std::function<void()>& deed);
  bool run(int code);
  const clsQk* quickKeyFor(int code, const QString& text) const;
  bool quickKey(int code);
  void show() { screen_.show(sale_.picture()); }
  void openDrawer();
  void toggleLinePrint();

  posMod& pos_;
  SaleScreen& screen_;
  Openers openers_;
  Sale sale_;
  BillBooks books_;
  SaleDevices devices_;
  SalePart part_;
  Checkout checkout_;
  BillLines lines_;
  MemberCard memberCard_;
  HeldBills held_;
  std::vector<KeyCommand> commands_;               ///< in the order that decides ties
  std::map<QString, std::function<void()>> menu_;  ///< by entry
  bool left_ = false;
};
