#include "tools/CsvRow.h"

void CsvRow::add(std::string_view field) {
  if (begun_) text_ += ',';
  begun_ = true;
  const bool plain = field.find_first_of(",\"\r\n") == std::string_view::npos;
  if (plain) {
    text_ += field;
    return;
  }
  text_ += '"';
  for (const char character : field) {
    if (character == '"') text_ += '"';
    text_ += character;
  }
  text_ += '"';
}

// A row of one empty field would be an empty line, which counts as no row.
void CsvRow::end() {
  const bool isEmptyLine = begun_ && (text_.empty() || text_.ends_with('\n'));
  if (isEmptyLine) text_ += "\"\"";
  text_ += "\r\n";
  begun_ = false;
}
