#include "reports/CsvExport.h"

#include "base/CsvRow.h"
#include "base/WholeFile.h"
#include "reports/ResultList.h"

namespace {

void addHeadings(CsvRow& row) {
  for (const ResultColumnDesign& column : resultColumns()) row.addForReader(column.header);
  row.end();
}

void addLine(CsvRow& row, const ResultList& list, std::size_t line) {
  for (int index = 0; index < kResultColumns; ++index) {
    const auto column = static_cast<ResultColumn>(index);
    const std::string text = list.text(line, column);
    const bool isTime = column == kColumnTime && !list.isTotals(line);
    if (text.empty() || isTime || resultColumns()[column].isNumber) {
      row.add(text);
    } else {
      row.addForReader(text);
    }
  }
  row.end();
}

}  // namespace

bool writeCsv(WholeFile& file, const ExportTable& table, const ExportProgress& goOn) {
  CsvRow rows;
  file.append(kUtf8Mark);
  for (const std::string& line : table.above) {
    rows.addForReader(line);
    rows.end();
  }
  addHeadings(rows);
  for (std::size_t row = 0; row < table.list.rowCount(); ++row) {
    if (row % kRowsPerProgress == 0) {
      if (!goOn(row)) return false;
      file.append(rows.text());
      rows.clear();
    }
    addLine(rows, table.list, row);
  }
  file.append(rows.text());
  return true;
}
