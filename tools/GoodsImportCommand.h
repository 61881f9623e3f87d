#pragma once

#include <string>
#include <vector>

#include "tools/Console.h"

class Connection;

/// import FILE SHEET: a goods sheet with the shop's headings or somebody else's.
struct GoodsImportOptions {
  std::string sheet;
  std::string mapping;               ///< a kept one's name
  std::string savedMapping;          ///< the name to keep this one by
  std::vector<std::string> columns;  ///< "heading=field"
  bool isConfirmed = false;          ///< writes without asking
};

/// Shows what the sheet would do, asks, and writes it all or not at all. Gives the exit code:
/// kDone, or kNothingWritten when somebody has to look at it first. Throws Refusal.
int importGoodsSheet(Connection& connection, const GoodsImportOptions& options, Console& console);
inline constexpr int kNothingWritten = 3;
