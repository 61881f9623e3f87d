#pragma once

#include <filesystem>
#include <utility>

#include "saleslib/CardAuthority.h"
#include "sync/LiveLine.h"

/// The shop's server decides about stored-value cards.
class ShopCards : public CardAuthority {
 public:
  ShopCards(const ShopLink& link, std::filesystem::path dataFile, Clock clock)
      : line_(link, std::move(dataFile), std::move(clock)) {}

  bool isAway() const override { return line_.isAway(); }
  Answer charge(const Charge& charge) override;

 private:
  LiveLine line_;
};
