#pragma once

#include <optional>
#include <string>
#include <vector>

#include "base/DateTime.h"

/// What a sales query asks for. Texts are as typed; blanks count as text.
struct SearchCriteria {
  DateTime start;           ///< a line counts when it is later,
  DateTime end;             ///< and not later than this
  bool byCategory = false;  ///< else by item
  std::string code;         ///< barcode, or a fragment of the short code; empty for all
  std::string billNo;       ///< counts by item only, and only without a code; empty for all
  std::string category;     ///< counts by category only
};

/// The query's statement: the lines by bill number and time. Nothing when the bill number is asked
/// for and is no number.
[[nodiscard]] std::optional<std::string> searchStatement(const SearchCriteria& criteria);

/// The criteria in words, a line for the period and one for the rest.
std::vector<std::string> criteriaText(const SearchCriteria& criteria);
