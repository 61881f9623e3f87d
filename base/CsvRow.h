#pragma once

#include <string>
#include <string_view>

/// Stands before UTF-8; without it spreadsheets take the text for GBK.
inline constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";

/// Rows of comma-separated values (RFC 4180), built up in one text that is written when it is long:
/// fields in quotes where they need it, lines ended with CR LF.
class CsvRow {
 public:
  void add(std::string_view field);
  /// A text for a spreadsheet's reader: in quotes, and one that a spreadsheet would calculate, and
  /// so could be made to run, behind the sign that makes it a text there.
  void addForReader(std::string_view text);
  /// Ends the row; the text may go on with the next.
  void end();

  const std::string& text() const { return text_; }
  void clear() { text_.clear(); }

 private:
  void separate();
  void quote(std::string_view field);

  std::string text_;
  bool begun_ = false;
};
