#pragma once

#include <cstdint>
#include <filesystem>
#include <istream>
#include <memory>
#include <string>
#include <vector>

/// The rows of a sheet as texts in UTF-8, read forward once.
class SheetReader {
 public:
  virtual ~SheetReader() = default;

  /// The next row that holds anything; false at the end. Throws Failure with its line when it is
  /// none.
  virtual bool next(std::vector<std::string>& fields) = 0;
  /// The line of the last row; the first is 1.
  virtual std::int64_t line() const = 0;
  /// How much of the sheet was read, 0 ... 1.
  virtual double progress() const = 0;
};

/// A sheet in a file: a workbook (.xlsx, told by its first bytes), or else separated values in
/// UTF-8, UTF-16 with its mark or GBK, with commas, semicolons or tabs. Throws Refusal when there
/// is none, or when it is a workbook of another kind.
std::unique_ptr<SheetReader> openSheet(const std::filesystem::path& file);
/// Separated values out of a stream that lives as long as the reader.
std::unique_ptr<SheetReader> readSheet(std::istream& text);
/// Whether all fields of a row are empty or blank.
bool holdsNothing(const std::vector<std::string>& fields);
