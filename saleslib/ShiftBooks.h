#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "base/Currency.h"
#include "base/DateTime.h"
#include "saleslib/ClsOperator.h"
#include "saleslib/Export.h"
#include "saleslib/ShiftDeeds.h"
#include "saleslib/ShiftTakings.h"

class Connection;

/// The notes and coins that are counted, from the largest: 100, 50, 20, 10, 5, 1 yuan, 5 and 1
/// jiao.
inline constexpr std::array kCashPieces = {
    Currency::fromScaled(1'000'000), Currency::fromScaled(500'000), Currency::fromScaled(200'000),
    Currency::fromScaled(100'000),   Currency::fromScaled(50'000),  Currency::fromScaled(10'000),
    Currency::fromScaled(5'000),     Currency::fromScaled(1'000)};

/// What was counted in the drawer, in the order of kCashPieces.
struct TESSALY_API CashCount {
  std::array<std::int32_t, kCashPieces.size()> pieces{};

  /// Throws Overflow.
  Currency sum() const;
  bool operator==(const CashCount&) const = default;
};

/// Cash put into the drawer or taken out of it (an amount below 0) beside sales.
struct CashMove {
  std::int64_t shift = 0;
  DateTime time;
  std::string person;
  Currency amount;
  std::string reason;
};

/// Which shift, of when and of whom.
struct ShiftHead {
  std::int64_t number = 0;
  DateTime opened;
  std::string openedBy;
  std::optional<DateTime> closed;  ///< none: it is open
  std::string closedBy;
};

/// A shift as its sheet tells of it; an open one with the figures of now.
struct TESSALY_API Shift : ShiftHead {
  Currency cashFloat;
  ShiftTakings takings;
  std::vector<CashMove> moves;
  int counts = 0;                   ///< how often the drawer was counted
  CashCount counted;                ///< the last time
  std::optional<ShiftDeeds> deeds;  ///< none without a journal
  /// Of the journal's entry that closed the shift, of an open one its last; empty without a
  /// journal.
  std::string journalHash;

  /// What should be in the drawer. Throws Overflow.
  Currency expected() const { return cashFloat + takings.cash(); }
  /// What was counted beside it: above 0 there was too much.
  Currency difference() const { return counted.sum() - expected(); }
};

/// Whether a shift is open. Throws StoreError.
TESSALY_API bool isShiftOpen(Connection& connection);

/// The books of shifts, of which at most one is open: what is paid, taken back and topped up until
/// it is closed belongs to it. Each step is one transaction, and is noted in the journal in it.
/// Throws StoreError when the store is broken, Overflow for sums that do not fit.
class TESSALY_API ShiftBooks {
 public:
  /// The connection outlives the books. Who only reads them needs nobody who keeps them; for every
  /// step there is somebody (ensure).
  explicit ShiftBooks(Connection& connection, Clock clock = localTime,
                      std::shared_ptr<const ClsOperator> person = {});

  /// The next shift, with that much in the drawer, which is not below 0 (ensure). False when one is
  /// open already.
  [[nodiscard]] bool open(Currency cashFloat);
  /// Puts cash into the drawer, or takes it out (an amount below 0); it is not 0, and there is a
  /// reason (ensure). None when no shift is open.
  [[nodiscard]] std::optional<CashMove> move(Currency amount, const std::string& reason);
  /// What is in the drawer by count. A shift may be counted again; each time is kept. False when
  /// none is open.
  [[nodiscard]] bool count(const CashCount& counted);
  /// Closes the open shift with its figures and the last count, for ever. False when none is open
  /// or it was never counted.
  [[nodiscard]] bool close();

  /// The open shift, with its figures of now.
  std::optional<Shift> current() const;
  /// A shift of that number; a closed one with the figures that it was closed with.
  std::optional<Shift> find(std::int64_t number) const;
  /// The closed shifts, the latest first, at most so many.
  std::vector<ShiftHead> closed(std::size_t most) const;

 private:
  std::optional<std::int64_t> openNumber() const;
  const ClsOperator& keeper() const;
  void readMoves(Shift& shift) const;
  void readCount(Shift& shift) const;
  void readJournal(Shift& shift) const;
  void storeFigures(const Shift& shift) const;

  Connection& connection_;
  Clock clock_;
  std::shared_ptr<const ClsOperator> person_;
};
