#include "saleslib/ClsRights.h"

#include <algorithm>

#include "base/Text.h"

ClsRights::ClsRights(const std::set<std::string>& keys) {
  for (const std::string& key : keys) {
    keys_.insert(asciiLower(key));
    const std::optional<HeldRight> held = parseRight(key);
    if (!held) continue;
    const auto [known, isNew] = held_.emplace(held->right, held->limit);
    if (isNew || !known->second) continue;
    known->second = held->limit ? std::max(known->second, held->limit) : std::nullopt;
  }
}

bool ClsRights::HasRight(std::string_view key) const {
  const std::optional<HeldRight> wanted = parseRight(key);
  return wanted ? held_.contains(wanted->right) : keys_.contains(asciiLower(key));
}

bool ClsRights::Allow(const Deed& deed) const {
  const auto held = held_.find(deed.right);
  return held != held_.end() && (!held->second || deed.size <= *held->second);
}

std::optional<Currency> ClsRights::Limit(Right right) const {
  const auto held = held_.find(right);
  return held == held_.end() ? std::nullopt : held->second;
}
