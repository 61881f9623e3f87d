#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

class ResultList;

/// What a file holds: lines of text, below them the list's headings, its lines and its totals row.
struct ExportTable {
  std::vector<std::string> above;
  const ResultList& list;  ///< complete
};

/// Called now and then with how much is done, for a list the rows written so far; false stops it.
using ExportProgress = std::function<bool(std::size_t rows)>;
/// How many rows are written between two such calls.
inline constexpr std::size_t kRowsPerProgress = 512;
