#include <algorithm>

#include "base/Gbk.h"
#include "takings/ReportFile.h"

namespace {

using Texts = std::vector<std::string>;

constexpr std::size_t kBetween = 2;  // blanks between columns

Texts textsOf(const std::vector<ReportCell>& row, const ReportSection& section) {
  Texts texts;
  for (std::size_t column = 0; column < row.size(); ++column) {
    texts.push_back(cellText(row[column], section.columns[column].kind));
  }
  return texts;
}

std::vector<Texts> table(const ReportSection& section) {
  std::vector<Texts> rows(1);
  for (const ReportColumn& column : section.columns) rows.front().push_back(column.title);
  for (const auto& row : section.rows) rows.push_back(textsOf(row, section));
  if (!section.totals.empty()) rows.push_back(textsOf(section.totals, section));
  return rows;
}

std::vector<std::size_t> widthsOf(const std::vector<Texts>& rows) {
  std::vector<std::size_t> widths(rows.front().size());
  for (const Texts& row : rows) {
    for (std::size_t column = 0; column < row.size(); ++column)
      widths[column] = std::max(widths[column], gbk::width(row[column]));
  }
  return widths;
}

void addRow(std::string& text, const Texts& row, const std::vector<std::size_t>& widths,
            const ReportSection& section) {
  std::string line;
  for (std::size_t column = 0; column < row.size(); ++column) {
    const std::string blanks(widths[column] - gbk::width(row[column]), ' ');
    const bool right = section.columns[column].isNumber();
    line.append(column == 0 ? 0 : kBetween, ' ');
    line.append(right ? blanks : row[column]).append(right ? row[column] : blanks);
  }
  line.erase(line.find_last_not_of(' ') + 1);
  text.append(line).append("\n");
}

void addSection(std::string& text, const ReportSection& section) {
  text.append("\n【").append(section.title).append("】").append(section.note).append("\n");
  const std::vector<Texts> rows = table(section);
  const std::vector<std::size_t> widths = widthsOf(rows);
  for (const Texts& row : rows) addRow(text, row, widths, section);
}

}  // namespace

std::string textReport(const Report& report) {
  std::string text = report.title + "\n";
  for (const std::string& line : report.above) text.append(line).append("\n");
  for (const ReportSection& section : report.sections) addSection(text, section);
  return text;
}
