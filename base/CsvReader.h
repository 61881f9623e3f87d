#pragma once

#include <cstddef>
#include <cstdint>
#include <istream>
#include <optional>
#include <string>
#include <vector>

#include "base/Failure.h"
#include "base/Utf16.h"

/// A text that is no comma-separated values; the message names the line.
class CsvError : public Failure {
 public:
  using Failure::Failure;
};

/// Reads comma-separated values (RFC 4180) row by row, as UTF-8. Lines may end with CR LF or LF, a
/// field in quotes may hold commas, line ends and doubled quotes, and empty lines are passed over.
/// Memory does not grow with the text: a row has at most 1 MiB.
///
/// The text is UTF-8, with or without a byte order mark, or else GBK: which one, a first pass over
/// all of it tells, so the stream must be one that can be read twice.
class CsvReader {
 public:
  enum class Accepts {
    kCommas,  ///< as above
    /// Also what spreadsheets write: UTF-16 with its mark, and semicolons or tabs in place of the
    /// commas, whichever gives the first row most fields.
    kAnySheet,
  };
  explicit CsvReader(std::istream& in, Accepts accepts = Accepts::kCommas);

  /// The next row's fields; false at the end. Throws CsvError when the text is no
  /// such row (an open quote, text around quotes, characters of neither code).
  bool next(std::vector<std::string>& fields);
  /// The line on which the last row began; the first line is 1.
  std::int64_t line() const { return rowLine_; }
  /// How much of the text was read, 0 ... 1.
  double progress() const;

 private:
  static constexpr int kEnd = -1;
  enum class Ended { kField, kRow };

  void recognise(Accepts accepts);
  void toTextBegin();
  std::size_t fieldsOfFirstRow(char delimiter);
  int get();
  int peek();
  void fill();
  Ended readField(std::string& field);
  void readQuoted(std::string& field);
  Ended endAfter(int character);
  void append(std::string& field, int character);
  void toUtf8(std::string& field) const;
  [[noreturn]] void refuse(const std::string& reason) const;

  std::istream& in_;
  bool isUtf8_ = true;
  char delimiter_ = ',';
  std::optional<Utf16Decoder> utf16_;
  std::optional<Utf16Decoder::Order> order_;  ///< of UTF-16
  std::int64_t textBegin_ = 0;                ///< behind the mark
  std::int64_t size_ = 0, read_ = 0;
  std::int64_t line_ = 1, rowLine_ = 1;
  std::size_t rowBytes_ = 0;
  std::string buffer_;  ///< a piece of the text
  std::size_t position_ = 0;
};
