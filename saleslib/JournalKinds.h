#pragma once

#include <string_view>
#include <vector>

#include "saleslib/Export.h"

/// What the journal tells of.
enum class EntryKind {
  kJournalBegun,
  kBooksStated,
  kJournalEnded,
  kLoggedIn,
  kLoginRefused,
  kLoggedOff,
  kBillOpened,
  kPriceTyped,
  kQuantityLowered,
  kDiscountChanged,
  kLineDeleted,
  kBillCancelled,
  kBillSuspended,
  kBillRecalled,
  kCardCharged,
  kBillSettled,
  kBillCompleted,
  kBillRedated,
  kGoodsReturned,
  kTopUpBegun,
  kTopUpLoaded,
  kMemberAdded,
  kMemberChanged,
  kDrawerOpened,
  kReprinted,
  kExported,
  kReported,
  kSettingsChanged,
  kParameterSet,
  kOperatorAdded,
  kOperatorChanged,
  kOperatorRemoved,
  kImported,
  kStockCounted,
  kRestored,
  kClockSetBack,
  kApprovalGiven,
  kApprovalRefused,
  kShiftOpened,
  kCashMoved,
  kShiftCounted,
  kShiftClosed,
  kChargeVoided,
  kReturnVoided,
  kReturnedElsewhere,
  kBillReleased,
  kBillReceived,
  kBillRefused,
};

/// A kind as entries have it, and as people call it.
struct EntryKindName {
  EntryKind kind;
  const char* key;   ///< of `fact`; never changed, entries have it for ever
  const char* name;  ///< for people
};

/// All kinds, in the order of their names above.
TESSALY_API const std::vector<EntryKindName>& entryKinds();
TESSALY_API const EntryKindName& entryKind(EntryKind kind);
/// None for a key that this program does not know.
TESSALY_API const EntryKindName* entryKindOf(std::string_view key);
