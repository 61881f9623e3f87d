#pragma once

#include <string>
#include <string_view>

/// Rows of comma-separated values (RFC 4180), built up in one text that is written when it is long:
/// fields in quotes where they need it, lines ended with CR LF.
class CsvRow {
 public:
  void add(std::string_view field);
  /// Ends the row; the text may go on with the next.
  void end();

  const std::string& text() const { return text_; }
  void clear() { text_.clear(); }

 private:
  std::string text_;
  bool begun_ = false;
};
