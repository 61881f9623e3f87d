#pragma once

#include <set>
#include <string>
#include <string_view>

/// The right to sell, and with it to open the till's screens.
inline constexpr const char* kRightSell = "sell";

/// One operator's rights, by key.
class ClsRights {
 public:
  ClsRights() = default;
  explicit ClsRights(std::set<std::string> keys);
  [[nodiscard]] bool HasRight(std::string_view key) const;

 private:
  std::set<std::string> keys_;
};
