#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Currency.h"
#include "base/Discount.h"
#include "saleslib/Export.h"

/// What somebody at the till may do, or may allow another to do, in the order in which people are
/// told of it.
enum class Right : std::size_t {
  kSell,
  kDiscount,
  kPrice,
  kNegative,
  kDelete,
  kReturn,
  kTopUp,
  kDrawer,
  kReprint,
  kQuery,
  kMembers,
  kSettings,
  kShift,
  kReport,
  kJournal
};
inline constexpr std::size_t kRights = 15;

/// One right. A further one is an entry in the list, and the place that asks for it.
struct RightKind {
  /// What a holder's limit counts, where there can be one.
  enum class Limit { kNone, kPercent, kYuan };

  Right right;
  const char* key;   ///< as it is stored and typed
  const char* word;  ///< for people: "打折"
  Limit limit = Limit::kNone;
};

TESSALY_API const std::array<RightKind, kRights>& rightKinds();
TESSALY_API const RightKind& rightKind(Right right);

/// A right as somebody holds it.
struct HeldRight {
  Right right;
  std::optional<Currency> limit;  ///< in what the right's limit counts; none: without limit
};

/// A stored or typed right: its key, without regard to ASCII case, and a limit behind a colon where
/// the right can have one: "drawer", "discount:10", "return:200". A limit is more than 0, and a
/// percentage at most 100. Nothing for any other text.
TESSALY_API std::optional<HeldRight> parseRight(std::string_view text);
/// The text of a right, as it is stored.
TESSALY_API std::string rightText(const HeldRight& held);
/// Every right without limit, as texts.
TESSALY_API const std::vector<std::string>& allRights();

/// Something that needs a right, and how much of it in what the right's limit counts.
struct Deed {
  Right right;
  Currency size = {};
};

/// What a discount factor gives away, in per cent; nothing (0) for a factor of 1 or more.
TESSALY_API Currency percentOff(Discount discount);
/// Per cent that a part is of a whole; 100 when the whole is not more than 0 or less than the part.
TESSALY_API Currency percentOf(Currency part, Currency whole);
