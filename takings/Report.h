#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "base/Currency.h"

/// A cell of a report: nothing, a text, a count, a quantity, or money; of a share, its per cent.
using ReportCell = std::variant<std::monostate, std::string, std::int64_t, double, Currency>;

struct ReportColumn {
  enum class Kind { kText, kCount, kQuantity, kMoney, kShare };
  std::string title;
  Kind kind;
  bool isNumber() const { return kind != Kind::kText; }
};

/// What a page draws of a section, by columns of it.
struct ReportChart {
  enum class Form { kLine, kColumns, kBars };
  Form form;
  std::size_t values;      ///< column
  std::size_t labels = 0;  ///< column
};

/// A table of a report. Of a long one, the first rows; `note` says how many there are.
struct ReportSection {
  std::string title;
  std::string note;  ///< for people; may be empty
  std::vector<ReportColumn> columns;
  std::vector<std::vector<ReportCell>> rows;
  std::vector<ReportCell> totals = {};  ///< empty, or one more row
  std::optional<ReportChart> chart = {};
};

/// A report as data: what the writers walk.
struct Report {
  std::string title;
  std::vector<std::string> above;  ///< shop, period, when it was made
  std::vector<ReportSection> sections;
};

/// As people read it: money with two decimals, a quantity in general form, a share with one decimal
/// and its sign. Throws Overflow for a quantity that is not finite.
std::string cellText(const ReportCell& cell, ReportColumn::Kind kind);

/// Broken UTF-8, which files and pages would break on, becomes U+FFFD.
void makeTextsSound(ReportSection& section);

/// How much of the whole that is, in per cent; nothing when the whole is none.
ReportCell shareOf(Currency part, Currency whole);
