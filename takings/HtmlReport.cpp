#include <algorithm>

#include "base/Text.h"
#include "takings/ReportFile.h"
#include "takings/ReportPage.h"

namespace {

/// As many names as can be read beside their bars.
constexpr std::size_t kMostBars = 15;

std::string escaped(const std::string& text) {
  std::string safe = replaced(text, "&", "&amp;");
  safe = replaced(safe, "<", "&lt;");
  safe = replaced(safe, ">", "&gt;");
  return replaced(safe, "\"", "&quot;");
}

/// A string of JSON (RFC 8259) that also stands in a script without ending it.
std::string quoted(const std::string& text) {
  constexpr const char* kDigits = "0123456789abcdef";
  constexpr unsigned char kFirstPrintable = 0x20;
  std::string json = "\"";
  for (const char each : text) {
    const auto byte = static_cast<unsigned char>(each);
    const bool isPlain = byte >= kFirstPrintable && each != '"' && each != '\\' && each != '<';
    if (isPlain) {
      json += each;
    } else {
      json.append("\\u00").append(1, kDigits[byte >> 4]).append(1, kDigits[byte & 15]);
    }
  }
  return json + "\"";
}

void addCells(std::string& page, const std::vector<ReportCell>& row, const ReportSection& section) {
  page += "<tr>";
  for (std::size_t column = 0; column < row.size(); ++column) {
    const ReportColumn::Kind kind = section.columns[column].kind;
    page.append(section.columns[column].isNumber() ? "<td class=\"n\">" : "<td>");
    page.append(escaped(cellText(row[column], kind))).append("</td>");
  }
  page += "</tr>\n";
}

void addTable(std::string& page, const ReportSection& section) {
  page += "<div class=\"scroll\"><table>\n<thead><tr>";
  for (const ReportColumn& column : section.columns) {
    page.append(column.isNumber() ? "<th class=\"n\">" : "<th>");
    page.append(escaped(column.title)).append("</th>");
  }
  page += "</tr></thead>\n<tbody>\n";
  for (const auto& row : section.rows) addCells(page, row, section);
  page += "</tbody>\n";
  if (!section.totals.empty()) {
    page += "<tfoot>\n";
    addCells(page, section.totals, section);
    page += "</tfoot>\n";
  }
  page += "</table></div>\n";
}

bool isDrawn(const ReportSection& section) {
  return section.chart && !section.rows.empty();
}

const char* formName(ReportChart::Form form) {
  switch (form) {
    case ReportChart::Form::kLine:
      return "line";
    case ReportChart::Form::kColumns:
      return "columns";
    case ReportChart::Form::kBars:
      break;
  }
  return "bars";
}

/// What the page's script draws: {"at": index of the section, "form", "label", "names", "values"}.
std::string chartData(const ReportSection& section, std::size_t at) {
  const ReportChart& chart = *section.chart;
  const bool isBars = chart.form == ReportChart::Form::kBars;
  const std::size_t count = isBars ? std::min(kMostBars, section.rows.size()) : section.rows.size();
  std::string names, values;
  for (std::size_t row = 0; row < count; ++row) {
    const auto cell = [&](std::size_t column) {
      return cellText(section.rows[row][column], section.columns[column].kind);
    };
    names.append(row == 0 ? "" : ",").append(quoted(cell(chart.labels)));
    values.append(row == 0 ? "" : ",").append(cell(chart.values));
  }
  std::string data = "{\"at\":" + std::to_string(at);
  data.append(",\"form\":\"").append(formName(chart.form)).append("\",\"label\":");
  data.append(quoted(section.columns[chart.values].title)).append(",\"names\":[").append(names);
  return data.append("],\"values\":[").append(values).append("]}");
}

std::string charts(const Report& report) {
  std::string all;
  for (std::size_t at = 0; at < report.sections.size(); ++at) {
    if (!isDrawn(report.sections[at])) continue;
    all.append(all.empty() ? "" : ",\n").append(chartData(report.sections[at], at));
  }
  return "[" + all + "]";
}

std::string heading(const Report& report) {
  std::string text = "<header><h1>" + escaped(report.title) + "</h1>\n";
  for (const std::string& line : report.above)
    text.append("<p>").append(escaped(line)).append("</p>\n");
  text += "<nav>";
  for (std::size_t at = 0; at < report.sections.size(); ++at) {
    text.append("<a href=\"#s").append(std::to_string(at)).append("\">");
    text.append(escaped(report.sections[at].title)).append("</a>");
  }
  return text + "</nav></header>\n";
}

void addSection(std::string& page, const ReportSection& section, std::size_t at) {
  const std::string number = std::to_string(at);
  page.append("<section id=\"s").append(number).append("\"><h2>").append(escaped(section.title));
  page += "</h2>\n";
  if (!section.note.empty()) page.append("<p>").append(escaped(section.note)).append("</p>\n");
  page += "<div class=\"body\">\n";
  if (isDrawn(section))
    page.append("<div class=\"chart\"><canvas id=\"c")
        .append(number)
        .append("\"></canvas></div>\n");
  addTable(page, section);
  page += "</div></section>\n";
}

}  // namespace

std::string htmlReport(const Report& report) {
  std::string page(kPageTop);
  page.append("<title>").append(escaped(report.title)).append("</title>\n</head>\n<body>\n");
  page.append(heading(report)).append("<main>\n");
  for (std::size_t at = 0; at < report.sections.size(); ++at)
    addSection(page, report.sections[at], at);
  page.append("</main>\n<script>\n").append(kChartLibrary).append("</script>\n<script>\n");
  page.append("const charts = ").append(charts(report)).append(";\n").append(kPageScript);
  return page.append("</script>\n</body>\n</html>\n");
}
