#pragma once

#include <set>
#include <string>
#include <string_view>

#include "saleslib/Export.h"

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
  explicit ClsRights(const std::set<std::string>& keys);
  [[nodiscard]] bool HasRight(std::string_view key) const;
  /// All keys, in lower case.
  const std::set<std::string>& Keys() const { return keys_; }

 private:
  std::set<std::string> keys_;
};
