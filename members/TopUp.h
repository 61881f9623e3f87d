#pragma once

#include <optional>
#include <string>

#include "base/Currency.h"
#include "platform/PagePrinter.h"

class ClsSysParam;
class Connection;

/// A stored-value card as the top-up shows it.
struct StoredCard {
  std::string memberName;
  std::string discountClass;  ///< the member's discount class value, as text
  Currency balance;
};
/// The card of that number; nothing when there is none. Throws StoreError.
std::optional<StoredCard> findStoredCard(Connection& connection, const std::string& number);

/// Money loaded onto a stored-value card.
struct TopUp {
  std::string cardNumber;
  Currency paid;      ///< by the customer
  Currency credited;  ///< to the card; more than was paid when the shop adds a bonus
  Currency balance;   ///< of the card after it
  std::string remark;
};
/// Appends the record, then writes the card's balance: two writes, each durable by itself. Throws
/// StoreError; a record that was written stays, so that nothing that was paid is forgotten.
void storeTopUp(Connection& connection, const TopUp& topUp);

/// The texts of the dialog's fields that the slip repeats.
struct SlipTexts {
  std::string cardNumber, balanceBefore, paid, credited, balanceAfter;
};
PageDocument topUpSlip(const ClsSysParam& shop, const SlipTexts& texts);
