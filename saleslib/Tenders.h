#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "saleslib/Export.h"

class ClsSell;
class ClsSysParam;

/// What a bill is settled with, in the order in which screens, papers and figures name it.
enum class Tender : std::size_t { kCash, kBankCard, kPhone, kStoredCard, kFavorable };
inline constexpr std::size_t kTenders = 5;

/// One kind of payment. A further one is an entry in the list and a column of `sell`; settlement,
/// receipts, status lines, statistics, query and check walk the list.
struct TenderKind {
  /// How its figure comes into the bill. Each kind counts for the change with its full figure.
  enum class Form {
    kReceived,  ///< money received, as the cashier types it
    kCharged,   ///< all that is due, taken from a stored-value card
    kGranted,   ///< given up by the shop
  };

  Tender tender;
  const char* name;    ///< for people
  const char* column;  ///< of `sell`
  Form form;
  const char* parameter =
      nullptr;                 ///< the shop parameter that turns it on; none: every shop has it
  const char* slip = nullptr;  ///< for people: the code on the payer's slip, where there is one
};

TESSALY_API const std::array<TenderKind, kTenders>& tenderKinds();
TESSALY_API const TenderKind& tenderKind(Tender tender);

/// The kinds that this bill's screens and papers name: what every shop has, what this shop has
/// turned on, and what the bill was settled with.
TESSALY_API std::vector<const TenderKind*> tendersOf(const ClsSell& bill, const ClsSysParam& rules);
/// Of these, all but what the shop gave up.
TESSALY_API std::vector<const TenderKind*> moneyTendersOf(const ClsSell& bill,
                                                          const ClsSysParam& rules);
/// The kinds that the shop has turned on beside those of every shop, for figures of many bills.
TESSALY_API std::vector<const TenderKind*> optionalTenders(const ClsSysParam& rules);

/// A slip's code as typed or scanned, made fit for a bill and for the look-up: half-width, without
/// control characters and blanks around, its first 64 characters.
TESSALY_API std::string slipCode(std::string_view typed);
