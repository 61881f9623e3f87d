#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "base/Currency.h"
#include "saleslib/Export.h"
#include "saleslib/StoredCard.h"

class Connection;

/// Money loaded onto a stored-value card.
struct TopUp {
  std::string cardNumber;
  Currency paid;      ///< by the customer
  Currency credited;  ///< to the card; more than was paid when the shop adds a bonus
  Currency balance;   ///< of the card after it, as the cashier saw it
  std::string remark;
  Currency before = {};  ///< of the card before it, as the cashier saw it; no record holds it
};

/// A top-up whose record was written, but not the card's balance.
struct IncompleteTopUp {
  std::int64_t id = 0;
  TopUp topUp;
  bool isReported = false;  ///< a cashier has been told
};

/// The books of top-ups. Throws StoreError when the store is broken.
class TESSALY_API TopUpBooks {
 public:
  /// The connection outlives the books.
  explicit TopUpBooks(Connection& connection) : connection_(connection) {}

  /// The card of a typed or swiped number (see storedCardNumbers), blocked or not; none when there
  /// is none.
  std::optional<StoredCard> card(const std::string& typed) const;
  /// Appends the record, then loads the card with the difference that the cashier saw, together
  /// with the mark that the top-up is complete: two writes, each durable by itself. An unknown or
  /// blocked card has no record. When the store fails, a record that was written stays, so that
  /// nothing that was paid is forgotten, and the same top-up tried again completes that record
  /// instead of writing a second one.
  CardResult store(const TopUp& topUp);
  /// In the order in which they were begun.
  std::vector<IncompleteTopUp> incomplete() const;
  /// Notes that a cashier has been told of that top-up, which stays as incomplete as it is; loading
  /// the card again is a top-up of its own from then on.
  void noteReported(const IncompleteTopUp& topUp);

 private:
  std::optional<std::int64_t> begunRecord(const TopUp& topUp) const;
  std::int64_t writeRecord(const TopUp& topUp);
  void load(const TopUp& topUp, std::int64_t record);

  Connection& connection_;
};
