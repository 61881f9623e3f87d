#pragma once

#include <filesystem>
#include <utility>

#include "saleslib/BillAuthority.h"
#include "sync/LiveLine.h"

/// The shop's server decides about returns, and brings held bills from till to till.
class ShopBills : public BillAuthority {
 public:
  ShopBills(const ShopLink& link, std::filesystem::path dataFile, Clock clock)
      : line_(link, std::move(dataFile), std::move(clock)) {}

  bool isAway() const override { return line_.isAway(); }
  std::int64_t atServer() const override;
  ReturnAnswer takeBack(const Return& wanted) override;
  BillAnswer bill(std::int64_t number) override;
  std::vector<HeldBill> heldElsewhere() override;
  HandOver handOver(const std::string& key, int till, std::int64_t bill) override;

 private:
  LiveLine line_;
};
