#include "base/CsvRow.h"
#include "takings/ReportFile.h"

namespace {

void addLine(CsvRow& csv, const std::string& text) {
  csv.addForReader(text);
  csv.end();
}

void addCells(CsvRow& csv, const std::vector<ReportCell>& row, const ReportSection& section) {
  for (std::size_t column = 0; column < row.size(); ++column) {
    const std::string text = cellText(row[column], section.columns[column].kind);
    if (std::holds_alternative<std::string>(row[column])) {
      csv.addForReader(text);
    } else {
      csv.add(text);
    }
  }
  csv.end();
}

void addSection(CsvRow& csv, const ReportSection& section) {
  csv.end();
  addLine(csv, section.title);
  if (!section.note.empty()) addLine(csv, section.note);
  for (const ReportColumn& column : section.columns) csv.addForReader(column.title);
  csv.end();
  for (const auto& row : section.rows) addCells(csv, row, section);
  if (!section.totals.empty()) addCells(csv, section.totals, section);
}

}  // namespace

std::string csvReport(const Report& report) {
  CsvRow csv;
  addLine(csv, report.title);
  for (const std::string& line : report.above) addLine(csv, line);
  for (const ReportSection& section : report.sections) addSection(csv, section);
  return std::string(kUtf8Mark) + csv.text();
}
