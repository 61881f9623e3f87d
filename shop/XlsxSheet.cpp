#include "shop/XlsxSheet.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <deque>
#include <exception>
#include <stdexcept>
#include <utility>

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

/// The texts that a workbook's cells share, one behind the other.
class SharedTexts {
 public:
  void begin() { begins_.push_back(all_.size()); }
  void append(const std::string& text) {
    if (begins_.empty() || all_.size() + text.size() > kMost)
      throw std::length_error("the texts are too many");
    all_ += text;
  }
  /// Throws std::out_of_range.
  std::string at(std::size_t number) const {
    const std::size_t begin = begins_.at(number);
    const std::size_t end = number + 1 < begins_.size() ? begins_[number + 1] : all_.size();
    return all_.substr(begin, end - begin);
  }

 private:
  static constexpr std::size_t kMost = std::size_t{1} << 30;
  std::string all_;
  std::vector<std::size_t> begins_;
};

/// A workbook's first sheet on its way: rows as they come.
class Workbook {
 public:
  struct Row {
    std::int64_t line = 0;
    std::vector<std::string> cells;
  };

  /// Throws std::exception when there is no sheet.
  explicit Workbook(const std::filesystem::path& file) : parts_(file) {
    readBook();
    steps_ = parts_.steps(
        sheet_,
        {[this](std::string_view element, const auto& attributes) { begin(element, attributes); },
         [this](std::string_view element, const std::string& end) { finish(element, end); }});
    if (!steps_) throw std::runtime_error("no sheet");
  }
  Workbook(const Workbook&) = delete;
  Workbook& operator=(const Workbook&) = delete;

  /// False at the end. Throws std::exception.
  bool next(Row& row) {
    while (rows_.empty()) {
      if (!steps_->next()) return false;
    }
    row = std::move(rows_.front());
    rows_.pop_front();
    return true;
  }
  double progress() const { return steps_->progress(); }

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
                         if (element == "si") texts_.begin();
                         if (element == "rPh") isPronunciation = true;
                       },
                       [&](std::string_view element, const std::string& text) {
                         if (element == "rPh") isPronunciation = false;
                         if (element == "t" && !isPronunciation) texts_.append(text);
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
      rows_.push_back({line_, std::move(cells_)});
      cells_.clear();
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
  SharedTexts texts_;
  std::deque<Row> rows_;  ///< of the last step
  std::int32_t line_ = 0;
  std::vector<std::string> cells_;  ///< of the present row
  std::size_t column_ = 0;          ///< of the present cell, from 1
  std::string kind_, text_;
  std::size_t format_ = 0;
  std::unique_ptr<XlsxParts::Steps> steps_;  ///< tells this object
};

class WorkbookRows : public SheetReader {
 public:
  explicit WorkbookRows(std::filesystem::path file) : file_(std::move(file)) {
    told([this] { workbook_ = std::make_unique<Workbook>(file_); });
  }

  bool next(std::vector<std::string>& fields) override {
    do {
      bool isThere = false;
      told([&] { isThere = workbook_->next(row_); });
      if (!isThere) return false;
    } while (holdsNothing(row_.cells));
    fields = std::move(row_.cells);
    // A workbook leaves out the empty cells at a row's end.
    if (headings_ == 0) headings_ = fields.size();
    fields.resize(std::max(fields.size(), headings_));
    return true;
  }
  std::int64_t line() const override { return row_.line; }
  double progress() const override { return workbook_->progress(); }

 private:
  template <class Work>
  void told(const Work& work) const {
    try {
      work();
    } catch (const std::exception&) {
      throw Refusal(Words::tr("这个工作簿读不出来：%1。请用表格软件打开，另存为 .xlsx 文件。",
                              file_.string()));
    }
  }

  std::filesystem::path file_;
  std::unique_ptr<Workbook> workbook_;
  Workbook::Row row_;
  std::size_t headings_ = 0;
};

}  // namespace

std::unique_ptr<SheetReader> openWorkbook(const std::filesystem::path& file) {
  return std::make_unique<WorkbookRows>(file);
}
