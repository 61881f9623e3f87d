#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "base/DateTime.h"
#include "saleslib/ClsSellItem.h"
#include "saleslib/Export.h"

class ClsMember;
class ClsSell;
class ClsSysParam;
class Connection;
class GoodsLookup;
class Recordset;

/// The goods that a code stands for, in the order of the data file.
class TESSALY_API FoundGoods {
 public:
  std::size_t count() const;

  /// What tells one of several goods from the others.
  struct Caption {
    std::string name;
    std::string origin;                     ///< of goods from the barcode table
    std::optional<std::string> itemNumber;  ///< of goods from the item table
    std::optional<double> stock;            ///< none: it cannot be read now
  };
  Caption caption(std::size_t index) const;

  /// A new line of that bill, priced for its member, if any, at today's prices.
  struct Line {
    std::shared_ptr<ClsSellItem> line;
    bool priceMissing = false;  ///< the cashier is to be asked for one
  };
  /// Throws Failure for a field that cannot be read.
  Line line(std::size_t index, const ClsSell& bill, const ClsMember* member) const;

 private:
  friend class GoodsLookup;
  FoundGoods(const GoodsLookup& lookup, Recordset rows, std::string code);

  const GoodsLookup& lookup_;
  std::shared_ptr<const Recordset> rows_;
  std::string code_;  ///< typed; empty for rows of the item table, which have a code of their own
};

/// The names of the goods' categories, in the shop's order. Throws StoreError.
TESSALY_API std::vector<std::string> goodsCategories(Connection& connection);

/// Finds goods by what a cashier types or scans. Throws StoreError.
class TESSALY_API GoodsLookup {
 public:
  GoodsLookup(Connection& connection, const ClsSysParam& rules, Clock clock);

  FoundGoods byBarcode(const std::string& code) const;
  FoundGoods bySpecification(const std::string& fragment) const;
  FoundGoods byItemNumber(const std::string& fragment) const;

 private:
  friend class FoundGoods;
  Connection& connection_;
  const ClsSysParam& rules_;
  Clock clock_;
};
