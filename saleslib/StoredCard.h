#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "base/Currency.h"
#include "saleslib/Export.h"

class Connection;

/// A member's stored-value card.
struct StoredCard {
  std::string number;
  std::string memberName;
  std::string discountClass;  ///< the member's discount class value, as text
  Currency balance;
  bool isEnabled = true;
};
/// The card of the first of these numbers (see CardNumber.h) that is one; nothing when none is.
/// Throws StoreError.
TESSALY_API std::optional<StoredCard> findStoredCard(Connection& connection,
                                                     const std::vector<std::string>& numbers);

/// What became of a charge or a top-up.
enum class CardOutcome {
  kDone,
  kUnknown,
  kBlocked,
  kWrongPassword,
  kTooLittle,
  kNoAnswer,  ///< the shop's server did not say, and the card stays as it was
};
/// The card as the operation left it; empty when it is unknown.
struct CardResult {
  CardOutcome outcome = CardOutcome::kUnknown;
  StoredCard card;
};

/// Takes an amount that is not negative (ensure) from a card. Nothing is charged unless the outcome
/// is kDone. Throws StoreError.
TESSALY_API CardResult chargeCard(Connection& connection, const std::string& number,
                                  const std::string& password, Currency due);

/// Whether the data file knows that card by that password and lets it pay (kDone), whatever it
/// holds. Throws StoreError.
TESSALY_API CardResult provenCard(Connection& connection, const std::string& number,
                                  const std::string& password);
/// Takes an amount that the shop's server has taken, or will, from what the data file knows of a
/// card, however little that is. Throws StoreError.
TESSALY_API void followCharge(Connection& connection, const std::string& number, Currency due);

/// What was added to a member's purchases and points.
struct Credit {
  std::int32_t memberId = 0;  ///< 0: nobody was credited
  Currency spent;
  int points = 0;
};
/// Adds what a member has bought to purchases and points, and gives what was added; a member that
/// is gone, or whose figures have no room for more, stays as it is. Throws StoreError.
TESSALY_API Credit creditPurchase(Connection& connection, std::int32_t memberId, Currency amount,
                                  std::int16_t pointUnit);
/// Takes a refund from what a member has bought; the points stay. A member that is gone has no
/// purchases. Throws StoreError.
TESSALY_API void debitPurchase(Connection& connection, std::int32_t memberId, Currency refund);
