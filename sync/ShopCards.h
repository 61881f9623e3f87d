#pragma once

#include <chrono>
#include <filesystem>
#include <string>

#include "base/DateTime.h"
#include "saleslib/CardAuthority.h"
#include "sync/TillLine.h"

/// The shop's server decides about stored-value cards. The line stays open between two questions.
class ShopCards : public CardAuthority {
 public:
  /// A cashier waits so long and no longer.
  static constexpr std::chrono::seconds kPatience{2};
  /// A server that tillsync has had no answer of for so long is away.
  static constexpr std::chrono::seconds kSilence{5};

  /// `dataFile` is where tillsync says beside which data file when the server last answered.
  ShopCards(const ShopLink& link, std::filesystem::path dataFile, Clock clock);

  bool isAway() const override;
  Answer charge(const Charge& charge) override;

 private:
  int till_;
  std::filesystem::path dataFile_;
  Clock clock_;
  TillLine server_;
};
