#pragma once

#include <filesystem>
#include <memory>

class SheetReader;

/// The first sheet of a workbook (ECMA-376 SpreadsheetML). A number is written out in its digits,
/// with the zeros in front that its format gives it; one of more than 15 digits, of which a
/// workbook keeps the first 15 only, in the scientific notation that no code may have. A date is
/// year-month-day, with its time if it has one. A formula is its last result. Rows are read as they
/// are asked for; what is in memory are the texts that cells share, of which a workbook has one
/// list, at most 1 GiB. Throws Refusal when it is no workbook, also while its rows are read.
std::unique_ptr<SheetReader> openWorkbook(const std::filesystem::path& file);
