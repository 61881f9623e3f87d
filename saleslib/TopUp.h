#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Currency.h"
#include "saleslib/Export.h"

class Connection;

/// A stored-value card as it is before a top-up.
struct StoredCard {
  std::string number;
  std::string memberName;
  std::string discountClass;  ///< the member's discount class value, as text
  Currency balance;
  bool isEnabled = true;
};
/// The card of a typed or swiped number (see storedCardNumbers); nothing when there is none. Throws
/// StoreError.
TESSALY_API std::optional<StoredCard> findStoredCard(Connection& connection,
                                                     std::string_view typed);

/// Money loaded onto a stored-value card.
struct TopUp {
  std::string cardNumber;
  Currency paid;      ///< by the customer
  Currency credited;  ///< to the card; more than was paid when the shop adds a bonus
  Currency balance;   ///< of the card after it
  std::string remark;
};
/// Appends the record, then writes the card's balance together with the mark that the top-up is
/// complete: two writes, each durable by itself. Throws StoreError; a record that was written
/// stays, so that nothing that was paid is forgotten, and the same top-up tried again completes
/// that record instead of writing a second one.
TESSALY_API void storeTopUp(Connection& connection, const TopUp& topUp);

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
