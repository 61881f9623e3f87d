#pragma once

#include <cstdint>
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
/// Appends the record, then loads the card with the difference that the cashier saw, together with
/// the mark that the top-up is complete: two writes, each durable by itself. An unknown or blocked
/// card has no record. Throws StoreError; a record that was written stays, so that nothing that was
/// paid is forgotten, and the same top-up tried again completes that record instead of writing a
/// second one.
TESSALY_API CardResult storeTopUp(Connection& connection, const TopUp& topUp);

/// A top-up whose record was written, but not the card's balance.
struct IncompleteTopUp {
  std::int64_t id = 0;
  TopUp topUp;
  bool isReported = false;  ///< a cashier has been told
};
/// In the order in which they were begun. Throws StoreError.
TESSALY_API std::vector<IncompleteTopUp> incompleteTopUps(Connection& connection);
/// Notes that a cashier has been told of that top-up, which stays as incomplete as it is; loading
/// the card again is a top-up of its own from then on. Throws StoreError.
TESSALY_API void noteReported(Connection& connection, const IncompleteTopUp& topUp);
