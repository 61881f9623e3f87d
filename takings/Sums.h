#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <unordered_map>

#include "base/Currency.h"
#include "base/DateTime.h"
#include "saleslib/Tenders.h"

/// What lines were sold for and what the shop had paid for it. Adding up throws Overflow when a sum
/// does not fit; quantities are rounded to six decimals.
struct Earned {
  Currency money;
  Currency cost;      ///< of the lines whose cost price is known
  Currency costless;  ///< money of the other lines

  void add(const Earned& more);
  /// Money of the lines whose cost price is known, and what of it is left behind the cost.
  Currency costed() const { return money - costless; }
  Currency profit() const { return costed() - cost; }
};

/// Settled bills with their lines, and returns.
struct BillSums {
  std::int64_t bills = 0;
  double quantity = 0;  ///< in units of sale
  Earned earned;        ///< its money is that of the goods, before the shop's rounding
  Currency due;
  Currency favorable;                ///< given at settlement
  std::int64_t discountedLines = 0;  ///< with a discount factor
  Currency lineDiscount;             ///< what that took off
  std::int64_t returns = 0;
  Currency refunded;

  void add(const BillSums& more);
};

/// The lines of an item.
struct GoodsSums {
  std::int64_t lines = 0;
  double quantity = 0;  ///< in stock units
  Earned earned;
  Currency lineDiscount;
  std::string code, name;  ///< as a line has them
  bool moved = false;      ///< sold since the day from which goods count as slow

  void add(const GoodsSums& more);
};

struct ReturnSums {
  std::int64_t returns = 0;
  double quantity = 0;  ///< in stock units
  Currency refunded;
  std::string code, name;  ///< as the line has them
};

struct TenderSums {
  std::int64_t bills = 0;  ///< settled with that kind
  Currency sum;
};

/// An item as it was sold: its code in lower case, for the books tell no case apart, and the
/// category that it had then.
struct SoldAs {
  std::string code, category;
  bool operator==(const SoldAs&) const = default;
};
struct SoldAsHash {
  std::size_t operator()(const SoldAs& sold) const {
    return std::hash<std::string>()(sold.code) ^ (std::hash<std::string>()(sold.category) << 1);
  }
};

/// All that a report adds up: as much as there are days, operators and goods, however many bills.
struct Takings {
  BillSums all;
  std::map<Date, BillSums> byDay;
  std::map<int, BillSums> byHour;
  std::map<std::int64_t, BillSums> byOperator;  ///< by number
  std::map<std::int64_t, BillSums> byTill;      ///< by number, of a shop of several tills
  std::map<Tender, TenderSums> byTender;
  std::unordered_map<SoldAs, GoodsSums, SoldAsHash> sold;
  std::unordered_map<std::string, ReturnSums> returned;  ///< by code in lower case
};
