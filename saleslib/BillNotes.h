#pragma once

#include <string>
#include <vector>

#include "base/Currency.h"
#include "saleslib/CardAuthority.h"
#include "saleslib/Journal.h"
#include "saleslib/StoredCard.h"

class ClsSell;
class ClsSellItem;

/// What the journal is told of a bill and its lines, each in the transaction of the step itself.
/// Does nothing in a shop without a journal.
class BillNotes {
 public:
  explicit BillNotes(Connection& connection) : connection_(connection), journal_(connection) {}

  void opened(const ClsSell& bill) const;
  /// Of a line that was rung at a price that the cashier typed.
  void rung(const ClsSellItem& line) const;
  /// A lower quantity, another discount; a higher quantity is not noted.
  void corrected(const ClsSellItem& before, const ClsSellItem& after) const;
  void deleted(const ClsSellItem& line) const;
  /// Of a bill that is left with these lines and `line`, if there is one, which is not yet in it.
  void left(EntryKind kind, const ClsSell& bill, const ClsSellItem* line = nullptr) const;
  /// With the key that the shop's server knows the charge by, if there is a server.
  void charged(const ClsSell& bill, const std::string& key = {}) const;
  /// Of a charge that was asked for and given up.
  void chargeVoided(const CardAuthority::Charge& charge) const;
  /// What the bill's row and lines are by now, and what its member was credited.
  void settled(EntryKind kind, const ClsSell& bill, const Credit& credit) const;

 private:
  Connection& connection_;
  Journal journal_;
};
