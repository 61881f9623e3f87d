#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "base/Currency.h"
#include "base/DateTime.h"
#include "saleslib/ClsSell.h"
#include "saleslib/Export.h"

class Connection;
class Rows;

/// Bills of one day, or still open, of one operator.
class TESSALY_API ClsDayStat {
 public:
  using Sells_t = std::vector<std::shared_ptr<ClsSell>>;

  /// Selects the operator's settled bills of that day, in the order of their numbers, without
  /// lines. The third argument is unused and 0.
  void DayQuery(Connection& connection, const Date& day, std::int64_t unused,
                std::int32_t operatorId);
  /// The settled bill of the shop with the latest time (the highest number among equals), whoever
  /// made it, without lines; none when there is none.
  std::shared_ptr<ClsSell> LastSell(Connection& connection) const;
  /// Selects the operator's bills that are still open, neither paid nor held, in the order of their
  /// numbers, with their lines loaded.
  void OpenQuery(Connection& connection, std::int32_t operatorId);
  /// Selects the bills of all operators that are held for longer than the program runs, in the
  /// order of their numbers, with their lines loaded.
  void HeldQuery(Connection& connection);
  /// Selects the bills of all operators that are open although payment was taken (see
  /// ClsSell::SavePaid), in the order of their numbers, without lines.
  void PaidQuery(Connection& connection);

  const Sells_t& Sells() const { return sells_; }
  double SumQuantity() const;
  /// Nothing when the sum does not fit.
  std::optional<Currency> SumMoney() const;
  /// Settled with that kind of payment; nothing when the sum does not fit.
  std::optional<Currency> SumTendered(Tender tender) const;

 private:
  void select(Connection& connection, Rows rows);
  template <class Figure>
  std::optional<Currency> sumOf(const Figure& figure) const;

  Sells_t sells_;
};
