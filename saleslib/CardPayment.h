#pragma once

#include <string>

#include "saleslib/CardAuthority.h"
#include "saleslib/StoredCard.h"

class ClsSell;
class Connection;

/// How a stored-value card pays for a bill: by the data file in one transaction, or in a shop with
/// a server by an answer of the server. What is asked of the server is stored before it is asked
/// and goes in the transaction that takes the answer, so that whatever ends the program leaves
/// either a paid bill or a charge that is known to be given up. Throws StoreError.
class CardPayment {
 public:
  /// Both outlive the payment. `shop` may be none; `limit` is what one card may pay while it does
  /// not answer (ClsSysParam::OfflineCardLimit).
  CardPayment(Connection& connection, Currency limit, CardAuthority* shop)
      : connection_(connection), limit_(limit), shop_(shop) {}

  /// Charges the bill's card with what it pays (CardPay), and stores the bill with the mark of a
  /// paid one. The bill is paid only when the outcome is kDone.
  CardResult pay(ClsSell& bill, const std::string& password);
  /// Gives up each charge that was asked for and that no bill was paid with.
  void giveUpUnpaid();

 private:
  CardResult payHere(ClsSell& bill, const std::string& password);
  CardResult payAtShop(ClsSell& bill, const StoredCard& card);
  CardResult follow(ClsSell& bill, const CardAuthority::Charge& charge,
                    const CardAuthority::Answer& answer, const StoredCard& card);
  void prepare(const CardAuthority::Charge& charge);
  void take(ClsSell& bill, const CardAuthority::Charge& charge, bool isAnswered);
  bool mayGoUnanswered(const CardAuthority::Charge& charge, const StoredCard& card);
  void refuse(const CardAuthority::Charge& charge);
  void giveUp(const CardAuthority::Charge& charge);
  void forget(const CardAuthority::Charge& charge);

  Connection& connection_;
  Currency limit_;
  CardAuthority* shop_;
};
