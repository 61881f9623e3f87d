#include "reports/CsvExport.h"

#include "base/Text.h"
#include "base/WholeFile.h"
#include "reports/ResultList.h"

namespace {

constexpr const char* kByteOrderMark = "\xEF\xBB\xBF";
constexpr const char* kLineEnd = "\r\n";

/// In quotes. A text that a spreadsheet would calculate, and so could be made to run, gets the sign
/// before it that makes it a text there.
std::string quotedField(const std::string& text) {
  const bool isFormula = text.find_first_of("=+-@\t\r\n") == 0;
  return (isFormula ? "\"'" : "\"") + replaced(text, "\"", "\"\"") + '"';
}

std::string headings() {
  std::string line;
  for (const ResultColumnDesign& column : resultColumns()) {
    if (!line.empty()) line += ',';
    line += quotedField(column.header);
  }
  return line;
}

std::string field(const ResultList& list, std::size_t row, ResultColumn column) {
  const std::string text = list.text(row, column);
  const bool isTime = column == kColumnTime && !list.isTotals(row);
  return text.empty() || isTime || resultColumns()[column].isNumber ? text : quotedField(text);
}

std::string rowLine(const ResultList& list, std::size_t row) {
  std::string line;
  for (int column = 0; column < kResultColumns; ++column) {
    if (column > 0) line += ',';
    line += field(list, row, static_cast<ResultColumn>(column));
  }
  return line;
}

}  // namespace

bool writeCsv(WholeFile& file, const ExportTable& table, const ExportProgress& goOn) {
  std::string text = kByteOrderMark;
  for (const std::string& line : table.above) text += quotedField(line) + kLineEnd;
  text += headings() + kLineEnd;
  for (std::size_t row = 0; row < table.list.rowCount(); ++row) {
    if (row % kRowsPerProgress == 0) {
      if (!goOn(row)) return false;
      file.append(text);
      text.clear();
    }
    text += rowLine(table.list, row) + kLineEnd;
  }
  file.append(text);
  return true;
}
