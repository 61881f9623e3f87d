#include "base/CsvRow.h"

#include "base/Text.h"

void CsvRow::add(std::string_view field) {
  separate();
  const bool plain = field.find_first_of(",\"\r\n") == std::string_view::npos;
  if (plain) {
    text_ += field;
  } else {
    quote(field);
  }
}

void CsvRow::addForReader(std::string_view text) {
  separate();
  const bool isFormula = text.find_first_of("=+-@\t\r\n") == 0;
  quote((isFormula ? "'" : "") + std::string(text));
}

void CsvRow::separate() {
  if (begun_) text_ += ',';
  begun_ = true;
}

void CsvRow::quote(std::string_view field) {
  text_ += '"' + replaced(std::string(field), "\"", "\"\"") + '"';
}

// A row of one empty field would be an empty line, which counts as no row.
void CsvRow::end() {
  const bool isEmptyLine = begun_ && (text_.empty() || text_.ends_with('\n'));
  if (isEmptyLine) text_ += "\"\"";
  text_ += "\r\n";
  begun_ = false;
}
