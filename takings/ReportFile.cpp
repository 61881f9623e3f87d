#include "takings/ReportFile.h"

#include "base/WholeFile.h"

const char* fileEnding(ReportFormat format) {
  switch (format) {
    case ReportFormat::kText:
      return "txt";
    case ReportFormat::kCsv:
      return "csv";
    case ReportFormat::kXlsx:
      return "xlsx";
    case ReportFormat::kHtml:
      break;
  }
  return "html";
}

std::string reportFileName(const Date& from, const Date& to, ReportFormat format) {
  std::string name = "经营报表 ";
  name.append(dateText(from)).append(" ").append(dateText(to));
  return name.append(".").append(fileEnding(format));
}

void writeReport(const std::filesystem::path& path, const Report& report, ReportFormat format) {
  WholeFile file(path);
  switch (format) {
    case ReportFormat::kText:
      file.append(textReport(report));
      break;
    case ReportFormat::kCsv:
      file.append(csvReport(report));
      break;
    case ReportFormat::kXlsx:
      xlsxReport(file, report);
      break;
    case ReportFormat::kHtml:
      file.append(htmlReport(report));
      break;
  }
  file.finish();
}
