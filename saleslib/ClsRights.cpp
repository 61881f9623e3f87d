#include "saleslib/ClsRights.h"

#include "base/Text.h"

ClsRights::ClsRights(const std::set<std::string>& keys) {
  for (const std::string& key : keys) keys_.insert(asciiLower(key));
}

bool ClsRights::HasRight(std::string_view key) const {
  return keys_.contains(asciiLower(key));
}
