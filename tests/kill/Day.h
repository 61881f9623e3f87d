#pragma once

#include <functional>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "kill/Goods.h"
#include "kill/Journal.h"

class TillDriver;

/// A cashier without end: rings, corrects, deletes, cancels, suspends and recalls bills, takes
/// cash, bank cards, telephones and stored-value cards, takes goods back, loads cards. Random, but
/// the same for the same seed. Every step that changes the books is written into the journal.
/// Whatever the till does not do as the journal expects throws std::runtime_error, as does a till
/// that is gone.
class Day {
 public:
  /// `aboutToConfirm` is called before a key is sent that changes the books.
  Day(Journal& journal, Goods goods, unsigned seed, std::function<void()> aboutToConfirm);

  /// From the main menu of that till, which the further steps work, to an empty bill. False when a
  /// shift must be opened first.
  [[nodiscard]] bool logIn(TillDriver& till);
  /// Opens that shift, and goes on to an empty bill.
  void beginShift();
  /// What the till told on the way, also on those that a kill cut short since this was last asked.
  std::string takeTold() { return std::exchange(told_, {}); }
  /// The next thing that the cashier does.
  void step();
  /// Leaves the till by its menus.
  void close();
  /// What the till names of the bill and of the top-up that were made last, or were being made.
  const std::string& settledBill() const { return settledBill_; }
  const std::string& lastTopUp() const { return lastTopUp_; }

 private:
  unsigned below(std::size_t limit) { return static_cast<unsigned>(random_() % limit); }
  bool chance(unsigned percent) { return below(100) < percent; }
  const std::string& anyCard();
  void play(const std::string& script);
  void confirm(const std::string& what, const std::string& window, Journal::Step step,
               Journal::Step halfway = nullptr);

  void newBill();
  void beginBill();
  void ring();
  void correct();
  void leaveBill(const char* key);
  void recall();
  void settle();
  void typeTenders(Ledger::Bill& bill);
  bool typeCard(Ledger::Bill& bill);
  Journal::Step settling(const Ledger::Bill& bill) const;
  void topUp();
  std::string toFurther(int entry);
  void closeShift();
  void takeBack();
  void takeBackLineOf(int number, const Ledger::Bill& bill);

  Journal& journal_;
  Goods goods_;
  std::mt19937 random_;
  std::function<void()> aboutToConfirm_;
  TillDriver* till_ = nullptr;
  int number_ = 0, highestNumber_ = 0;  ///< of the open bill, of all
  Ledger::Bill bill_;
  bool hasCurrentLine_ = false;  ///< the last line can still be changed
  std::vector<std::pair<int, Ledger::Bill>> held_;
  int furtherAt_ = 0;  ///< the highlight of the further menu
  std::string told_, settledBill_, lastTopUp_;
};
