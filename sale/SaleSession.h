#pragma once

#include <QString>
#include <functional>
#include <map>
#include <vector>

#include "checkout/CashDrawer.h"
#include "checkout/Checkout.h"
#include "checkout/CustomerDisplay.h"
#include "checkout/LineReceipt.h"
#include "checkout/SaleState.h"
#include "sale/BillLines.h"
#include "sale/ItemLookup.h"
#include "sale/KeyDispatch.h"

class posMod;
class SaleScreen;

/// The sale screen without its window: the state, everything that works on it, and what each key and
/// each entry of the function menu does.
class SaleSession {
 public:
  /// Screens that the sale screen opens modally, by name: "addmen", "search", "topup", "color",
  /// "unsell". A name that is missing has no key and no menu entry.
  using Openers = std::map<QString, std::function<void()>>;

  SaleSession(posMod& pos, SaleScreen& screen, Openers openers);

  /// What the screen does when it opens, after its widgets stand: settings, devices, clearing up
  /// after an earlier run, clock check, first bill. False when the program is to end.
  [[nodiscard]] bool open();
  /// ExitSale: whether the screen may close; says why not. Closes devices and drops an empty bill.
  [[nodiscard]] bool exit();

  /// A key on the input line, as virtual-key code. True when the key was used up; false leaves it to
  /// the text box.
  [[nodiscard]] bool key(int code);
  /// An entry of the function menu, by its key; an unknown key does nothing.
  void menu(const QString& entry);
  /// The function menu's entries that have an action: key and caption.
  std::vector<std::pair<QString, QString>> menuEntries() const;

  SaleState state;

 private:
  posMod& pos_;
  SaleScreen& screen_;
  Openers openers_;
  CustomerDisplay display_;
  CashDrawer drawer_;
  LineReceipt receipt_;
  Checkout checkout_;
  ItemLookup lookup_;
  BillLines lines_;
  std::vector<KeyCommand> commands_;
};
