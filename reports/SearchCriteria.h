#pragma once

#include <optional>
#include <string>
#include <vector>

#include "base/DateTime.h"
#include "saleslib/Tenders.h"

/// What a sales query asks for. Texts are as typed; blanks count as text.
struct SearchCriteria {
  DateTime start;           ///< a line counts when it is later,
  DateTime end;             ///< and not later than this
  bool byCategory = false;  ///< else by item
  std::string code;         ///< barcode, or a fragment of the short code; empty for all
  std::string billNo;       ///< counts by item only, and only without a code; empty for all
  bool takesSlips = false;  ///< the bill number may be the code on a payer's slip instead
  std::string category;     ///< counts by category only
};

/// The query's statement: the lines by bill number and time. Nothing when the bill number is asked
/// for and is no number.
[[nodiscard]] std::optional<std::string> searchStatement(const SearchCriteria& criteria);

/// What the bills of these lines came to in each of these kinds of payment, by its column; one row.
/// For criteria that have a statement.
[[nodiscard]] std::string tenderStatement(const SearchCriteria& criteria,
                                          const std::vector<const TenderKind*>& kinds);

/// The criteria in words, a line for the period and one for the rest.
std::vector<std::string> criteriaText(const SearchCriteria& criteria);
