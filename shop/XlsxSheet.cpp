#include "shop/XlsxSheet.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <exception>
#include <sstream>
#include <stdexcept>
#include <utility>

#include "base/CsvReader.h"
#include "base/CsvRow.h"
#include "base/DateTime.h"
#include "base/NumberText.h"
#include "base/Words.h"
#include "shop/Refusal.h"
#include "shop/SheetReader.h"
#include "shop/XlsxFormats.h"
#include "shop/XlsxParts.h"

namespace {

std::string dateText(double serial, Date origin) {
  constexpr double kSecondsOfDay = 86'400;
  constexpr double kMostDays = 2'958'465;  // the end of the year 9999
  if (serial < 0 || serial > kMostDays) return generalNumber(serial);
  const auto seconds = static_cast<std::int64_t>(std::llround(serial * kSecondsOfDay));
  const auto inDay = static_cast<int>(seconds % 86'400);
  return generalText(DateTime{plusDays(origin, static_cast<int>(seconds / 86'400)), inDay / 3'600,
                              inDay / 60 % 60, inDay % 60});
}

/// A workbook keeps 15 digits: a longer code is lost, and no reader may take it for whole.
std::string numberText(double number, NumberForm form) {
  constexpr double kFirstTooLong = 1e15;
  char digits[40];
  if (std::abs(number) >= kFirstTooLong) {
    std::snprintf(digits, sizeof digits, "%.5E", number);
    return digits;
  }
  if (number < 0 || std::floor(number) != number) return generalNumber(number);
  std::snprintf(digits, sizeof digits, "%0*.0f", form.leastDigits, number);
  return digits;
}

/// "C12" is the third column.
std::size_t columnOf(std::string_view cellName) {
  constexpr std::size_t kBeyond = 1'000;
  std::size_t column = 0;
  for (const char sign : cellName) {
    if (sign < 'A' || sign > 'Z' || column > kBeyond) break;
    column = column * 26 + static_cast<std::size_t>(sign - 'A' + 1);
  }
  return column;
}

/// A workbook while its first sheet is written down as comma-separated values: each row's line,
/// then its fields.
class Workbook {
 public:
  explicit Workbook(const std::filesystem::path& file) : parts_(file) { readBook(); }

  /// Throws std::exception when there is no sheet.
  std::string written() {
    const bool isThere = parts_.walk(
        sheet_,
        {[&](std::string_view element, const auto& attributes) { begin(element, attributes); },
         [&](std::string_view element, const std::string& end) { finish(element, end); }});
    if (!isThere) throw std::runtime_error("no sheet");
    return rows_.text();
  }

 private:
  static constexpr std::size_t kMostColumns = 256;

  void readBook() {
    const std::string book = parts_.references("", true)["officeDocument"];
    std::string first;
    parts_.walk(book, {[&](std::string_view element, const XlsxParts::Attributes& attributes) {
                         const auto date = attributes.find("date1904");
                         if (element == "workbookPr" && date != attributes.end() &&
                             (date->second == "1" || date->second == "true"))
                           origin_ = {1904, 1, 1};
                         if (element == "sheet" && first.empty()) first = attributes.at("id");
                       },
                       {}});
    sheet_ = parts_.references(book, false)[first];
    auto byKind = parts_.references(book, true);
    formats_.read(parts_, byKind["styles"]);
    readTexts(byKind["sharedStrings"]);
  }

  // Texts in pieces of different looks are one text; how Japanese is pronounced is none of it.
  void readTexts(const std::string& part) {
    bool isPronunciation = false;
    parts_.walk(part, {[&](std::string_view element, const auto&) {
                         if (element == "si") texts_.emplace_back();
                         if (element == "rPh") isPronunciation = true;
                       },
                       [&](std::string_view element, const std::string& text) {
                         if (element == "rPh") isPronunciation = false;
                         if (element == "t" && !isPronunciation) texts_.back() += text;
                       }});
  }

  // A row or a cell without its name is the next one.
  void begin(std::string_view element, const XlsxParts::Attributes& attributes) {
    const auto attribute = [&](std::string_view name) {
      const auto found = attributes.find(name);
      return found == attributes.end() ? std::string() : found->second;
    };
    if (element == "row") {
      line_ = parseWhole32(attribute("r")).value_or(line_ + 1);
      cells_.clear();
      column_ = 0;
    } else if (element == "c") {
      const std::string name = attribute("r");
      column_ = name.empty() ? column_ + 1 : columnOf(name);
      kind_ = attribute("t");
      format_ = static_cast<std::size_t>(parseWhole32(attribute("s")).value_or(0));
      text_.clear();
    }
  }

  void finish(std::string_view element, const std::string& text) {
    if (element == "v") {
      text_ = valueText(text);
    } else if (element == "t") {
      text_ += text;
    } else if (element == "c" && column_ > 0 && column_ <= kMostColumns) {
      if (cells_.size() < column_) cells_.resize(column_);
      cells_[column_ - 1] = text_;
    } else if (element == "row" && !cells_.empty()) {
      rows_.add(std::to_string(line_));
      for (const std::string& cell : cells_) rows_.add(cell);
      rows_.end();
    }
  }

  std::string valueText(const std::string& value) const {
    if (kind_ == "s") return texts_.at(static_cast<std::size_t>(parseWhole32(value).value()));
    double number = 0;
    const char* end = value.data() + value.size();
    const bool isNumber = (kind_.empty() || kind_ == "n") &&
                          std::from_chars(value.data(), end, number).ptr == end && !value.empty();
    if (!isNumber) return value;
    const NumberForm form = formats_.form(format_);
    return form.isDate ? dateText(number, origin_) : numberText(number, form);
  }

  XlsxParts parts_;
  std::string sheet_;  ///< the first one's part
  Date origin_{1899, 12, 30};
  XlsxFormats formats_;
  std::vector<std::string> texts_;  ///< that cells share
  CsvRow rows_;
  std::int32_t line_ = 0;
  std::vector<std::string> cells_;  ///< of the present row
  std::size_t column_ = 0;          ///< of the present cell, from 1
  std::string kind_, text_;
  std::size_t format_ = 0;
};

class WorkbookRows : public SheetReader {
 public:
  explicit WorkbookRows(std::string rows) : text_(std::move(rows)), reader_(text_) {}

  bool next(std::vector<std::string>& fields) override {
    do {
      if (!reader_.next(fields)) return false;
      line_ = parseWhole32(fields.front()).value();
      fields.erase(fields.begin());
    } while (holdsNothing(fields));
    // A workbook leaves out the empty cells at a row's end.
    if (headings_ == 0) headings_ = fields.size();
    fields.resize(std::max(fields.size(), headings_));
    return true;
  }
  std::int64_t line() const override { return line_; }
  double progress() const override { return reader_.progress(); }

 private:
  std::istringstream text_;
  CsvReader reader_;
  std::int64_t line_ = 0;
  std::size_t headings_ = 0;
};

}  // namespace

std::unique_ptr<SheetReader> openWorkbook(const std::filesystem::path& file) {
  try {
    return std::make_unique<WorkbookRows>(Workbook(file).written());
  } catch (const std::exception&) {
    throw Refusal(
        Words::tr("这个工作簿读不出来：%1。请用表格软件打开，另存为 .xlsx 文件。", file.string()));
  }
}
