#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "shop/NewShop.h"

class Connection;

/// The shop that a goods sheet is for.
struct GoodsTarget {
  /// What the columns of a sheet with these headings hold (shop/GoodsMapping.h).
  std::function<GoodsMapping(const std::vector<std::string>& headings)> mappingFor;
  /// Keeps a mapping for sheets that come again. Throws Failure.
  std::function<void(const std::string& name, const GoodsMapping& mapping)> keepMapping;

  /// Called in a thread of its own; nothing when it was ended. Throws Failure.
  using Work =
      std::function<std::optional<GoodsPreview>(const GoodsSheet& sheet, const GoOn& goOn)>;
  Work preview;
  Work import;  ///< none: the sheet is chosen now and comes in later
};

/// The shop that is open, while it sells; each work has a connection of its own. `connection`
/// outlives what is made of it.
GoodsTarget openShop(Connection& connection);
/// A shop that is yet to be made: there is nothing to compare with, and its sheet comes in with it.
GoodsTarget shopToBe();
