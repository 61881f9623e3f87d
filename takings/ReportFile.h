#pragma once

#include <filesystem>
#include <string>

#include "base/DateTime.h"
#include "takings/Report.h"

class WholeFile;

enum class ReportFormat { kText, kCsv, kXlsx, kHtml };

/// "txt", "csv", "xlsx" or "html".
const char* fileEnding(ReportFormat format);
/// A file's name for the report of that period: "经营报表 2026-01-01 2026-01-31.html".
std::string reportFileName(const Date& from, const Date& to, ReportFormat format);
/// Writes the report; the file has its name when it is whole, for its owner only. Throws FileError.
void writeReport(const std::filesystem::path& file, const Report& report, ReportFormat format);

// The writers: all of them walk the same sections.

/// Tables in columns as wide as their texts, a Chinese character counting 2.
std::string textReport(const Report& report);
/// RFC 4180 in UTF-8 with a byte order mark, an empty line between sections. Texts are quoted, and
/// those that begin as a formula made none; figures are bare.
std::string csvReport(const Report& report);
/// One page for browsers that needs nothing else, no network either: tables, charts, for screens of
/// telephones as of desks, and for paper.
std::string htmlReport(const Report& report);
/// A spreadsheet with a sheet per section, figures as numbers. Throws FileError.
void xlsxReport(WholeFile& file, const Report& report);
