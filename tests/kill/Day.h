#pragma once

#include <functional>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "kill/Goods.h"
#include "kill/Journal.h"

class TillDriver;

/// A cashier without end: rings, corrects, deletes, cancels, suspends and recalls bills, takes cash
/// and cards, takes goods back, loads cards. Random, but the same for the same seed. Every step
/// that changes the books is written into the journal. Whatever the till does not do as the journal
/// expects throws std::runtime_error, as does a till that is gone.
class Day {
 public:
  /// `aboutToConfirm` is called before a key is sent that changes the books.
  Day(Journal& journal, Goods goods, unsigned seed, std::function<void()> aboutToConfirm);

  /// From the main menu to an empty bill.
  void logIn(TillDriver& till);
  /// What the till told on the way, also on those that a kill cut short since this was last asked.
  std::string takeTold() { return std::exchange(told_, {}); }
  /// The next thing that the cashier does.
  void step(TillDriver& till);
  /// Leaves the till by its menus.
  void close(TillDriver& till);
  /// The bill that was settled last, or was being settled; 0 before the first.
  int settledBill() const { return settledBill_; }

 private:
  struct OpenBill {
    int number = 0;
    std::string member;
    std::vector<Ledger::Line> lines;
    bool hasCurrentLine = false;  ///< the last line can still be changed
  };

  unsigned below(unsigned limit);
  bool chance(unsigned percent) { return below(100) < percent; }
  void choose(TillDriver& till, int& highlight, int entry);
  const std::string& anyCard();

  void newBill(TillDriver& till);
  void attachMember(TillDriver& till);
  void ring(TillDriver& till);
  void changeQuantity(TillDriver& till);
  void changeDiscount(TillDriver& till);
  void deleteLine(TillDriver& till);
  void cancel(TillDriver& till);
  void suspend(TillDriver& till);
  void recall(TillDriver& till);
  void settle(TillDriver& till);
  void payCash(TillDriver& till);
  void payCard(TillDriver& till);
  void topUp(TillDriver& till);
  void takeBack(TillDriver& till);
  void takeBackLine(TillDriver& till);

  Ledger::Bill figures() const;
  Journal::Step settling(const Ledger::Bill& bill) const;
  void confirming(const std::string& what, Journal::Step step, Journal::Step halfway,
                  TillDriver& till);

  Journal& journal_;
  Goods goods_;
  std::mt19937 random_;
  std::function<void()> aboutToConfirm_;
  OpenBill bill_;
  std::vector<OpenBill> held_;
  std::string told_;
  int highestNumber_ = 0;
  int settledBill_ = 0;
  int mainEntry_ = 0, furtherEntry_ = 0;  ///< where the menus' highlights are
};
