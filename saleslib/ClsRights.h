#pragma once

#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>

#include "saleslib/Export.h"
#include "saleslib/Right.h"

/// The right to sell, and with it to open the till's screens.
inline constexpr const char* kRightSell = "sell";
/// The right to see the owner's report.
inline constexpr const char* kRightReport = "report";
/// The right to see the journal.
inline constexpr const char* kRightJournal = "journal";

/// One operator's rights, by key. Keys are compared without regard to ASCII case.
class TESSALY_API ClsRights {
 public:
  ClsRights() = default;
  /// Each as parseRight reads it; a right that is named twice counts with the higher limit. A key
  /// that is none of the till's is kept, and allows nothing of it.
  explicit ClsRights(const std::set<std::string>& keys);
  /// Up to whatever limit.
  [[nodiscard]] bool HasRight(std::string_view key) const;
  /// Whether that right is there, and its limit not below the deed.
  [[nodiscard]] bool Allow(const Deed& deed) const;
  /// The limit of a right that is there; none without limit, and without the right.
  std::optional<Currency> Limit(Right right) const;
  /// All of them as they were given, in lower case.
  const std::set<std::string>& Keys() const { return keys_; }

 private:
  std::set<std::string> keys_;
  std::map<Right, std::optional<Currency>> held_;
};
