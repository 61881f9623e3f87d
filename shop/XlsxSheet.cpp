#include "shop/XlsxSheet.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <exception>
#include <orcus/orcus_xlsx.hpp>
#include <sstream>
#include <utility>

#include "base/CsvReader.h"
#include "base/CsvRow.h"
#include "base/DateTime.h"
#include "base/NumberText.h"
#include "shop/Refusal.h"
#include "shop/SheetReader.h"
#include "shop/XlsxFormats.h"

namespace {

namespace sheet = orcus::spreadsheet;

/// The texts that cells share.
class Texts : public sheet::iface::import_shared_strings {
 public:
  const std::string& at(std::size_t index) const { return texts_.at(index); }

  std::size_t append(std::string_view text) override {
    texts_.emplace_back(text);
    return texts_.size() - 1;
  }
  std::size_t add(std::string_view text) override { return append(text); }
  void append_segment(std::string_view text) override { segments_ += text; }
  std::size_t commit_segments() override { return append(std::exchange(segments_, {})); }
  void set_segment_font(std::size_t) override {}
  void set_segment_bold(bool) override {}
  void set_segment_italic(bool) override {}
  void set_segment_font_name(std::string_view) override {}
  void set_segment_font_size(double) override {}
  void set_segment_font_color(sheet::color_elem_t, sheet::color_elem_t, sheet::color_elem_t,
                              sheet::color_elem_t) override {}

 private:
  std::vector<std::string> texts_;
  std::string segments_;
};

struct Cell {
  std::string text;
  std::optional<double> number;
  std::size_t format = 0;
};

/// The day that a workbook counts from.
struct Origin : sheet::iface::import_global_settings {
  Date day{1899, 12, 30};

  void set_origin_date(int year, int month, int dayOfMonth) override {
    day = {year, month, dayOfMonth};
  }
  void set_default_formula_grammar(sheet::formula_grammar_t) override {}
  sheet::formula_grammar_t get_default_formula_grammar() const override {
    return sheet::formula_grammar_t::xlsx;
  }
  void set_character_set(orcus::character_set_t) override {}
};

/// Cells by the names that workbooks give them: "B3", "$B$3", "A1:C9".
struct CellNames : sheet::iface::import_reference_resolver {
  sheet::src_address_t resolve_address(std::string_view name) override {
    sheet::src_address_t address = {0, 0, 0};
    constexpr std::size_t kLongest = 12;  // a longer one names no cell
    for (const char sign : name.substr(0, kLongest)) {
      if (sign >= 'A' && sign <= 'Z')
        address.column = address.column % 1'000'000 * 26 + (sign - 'A' + 1);
      if (sign >= '0' && sign <= '9') address.row = address.row % 10'000'000 * 10 + (sign - '0');
    }
    --address.column;
    --address.row;
    return address;
  }
  sheet::src_range_t resolve_range(std::string_view name) override {
    const std::size_t colon = name.find(':');
    const sheet::src_address_t first = resolve_address(name.substr(0, colon));
    return {first, colon == name.npos ? first : resolve_address(name.substr(colon + 1))};
  }
};

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

/// Hears of the cells of one sheet, row by row, and writes each finished row down: its line, then
/// its fields.
class Cells : public sheet::iface::import_sheet, public sheet::iface::import_formula {
 public:
  enum class Kind { kRead, kPassedOver };
  Cells(const Texts& texts, const XlsxFormats& formats, const Origin& origin, Kind kind)
      : texts_(texts), formats_(formats), origin_(origin), kind_(kind) {}

  /// All rows, as comma-separated values.
  std::string written() {
    endRow();
    return rows_.text();
  }

  import_formula* get_formula() override { return this; }
  void set_auto(sheet::row_t row, sheet::col_t column, std::string_view text) override {
    cell(row, column).text = text;
  }
  void set_string(sheet::row_t row, sheet::col_t column, sheet::string_id_t index) override {
    cell(row, column).text = texts_.at(index);
  }
  void set_value(sheet::row_t row, sheet::col_t column, double value) override {
    cell(row, column).number = value;
  }
  void set_bool(sheet::row_t row, sheet::col_t column, bool value) override {
    cell(row, column).text = value ? "1" : "0";
  }
  void set_date_time(sheet::row_t row, sheet::col_t column, int year, int month, int day, int hour,
                     int minute, double second) override {
    cell(row, column).text =
        generalText({{year, month, day}, hour, minute, static_cast<int>(second)});
  }
  void set_format(sheet::row_t row, sheet::col_t column, std::size_t format) override {
    cell(row, column).format = format;
  }
  void set_format(sheet::row_t, sheet::col_t, sheet::row_t, sheet::col_t, std::size_t) override {}
  void fill_down_cells(sheet::row_t, sheet::col_t, sheet::row_t) override {}
  sheet::range_size_t get_sheet_size() const override { return {1'048'576, kMostColumns}; }

  void set_position(sheet::row_t row, sheet::col_t column) override { result_ = {row, column}; }
  void set_formula(sheet::formula_grammar_t, std::string_view) override {}
  void set_shared_formula_index(std::size_t) override {}
  void set_result_string(std::string_view text) override {
    cell(result_.first, result_.second).text = text;
  }
  void set_result_value(double value) override {
    cell(result_.first, result_.second).number = value;
  }
  void set_result_bool(bool value) override { set_bool(result_.first, result_.second, value); }
  void set_result_empty() override {}
  void commit() override {}

 private:
  static constexpr int kMostColumns = 256;

  Cell& cell(sheet::row_t row, sheet::col_t column) {
    if (kind_ == Kind::kPassedOver || column < 0 || column >= kMostColumns) return beyond_;
    if (row != row_) endRow();
    row_ = row;
    const auto place = static_cast<std::size_t>(column);
    if (cells_.size() <= place) cells_.resize(place + 1);
    return cells_[place];
  }

  std::string textOf(const Cell& cell) const {
    if (!cell.number) return cell.text;
    const NumberForm form = formats_.form(cell.format);
    return form.isDate ? dateText(*cell.number, origin_.day) : numberText(*cell.number, form);
  }

  void endRow() {
    if (cells_.empty()) return;
    rows_.add(std::to_string(row_ + 1));
    for (const Cell& cell : cells_) rows_.add(textOf(cell));
    rows_.end();
    cells_.clear();
  }

  const Texts& texts_;
  const XlsxFormats& formats_;
  const Origin& origin_;
  Kind kind_;
  CsvRow rows_;
  std::vector<Cell> cells_;  ///< of the present row
  Cell beyond_;              ///< what is written outside of any sheet of goods
  sheet::row_t row_ = 0;
  std::pair<sheet::row_t, sheet::col_t> result_;
};

/// Hears of a workbook, and listens to its first sheet only.
class Workbook : public sheet::iface::import_factory {
 public:
  std::string written() { return cells_.written(); }

  sheet::iface::import_global_settings* get_global_settings() override { return &origin_; }
  sheet::iface::import_shared_strings* get_shared_strings() override { return &texts_; }
  sheet::iface::import_styles* get_styles() override { return &formats_; }
  sheet::iface::import_reference_resolver* get_reference_resolver(
      sheet::formula_ref_context_t) override {
    return &names_;
  }
  sheet::iface::import_sheet* append_sheet(sheet::sheet_t index, std::string_view name) override {
    if (index == 0) first_ = name;
    return get_sheet(index);
  }
  sheet::iface::import_sheet* get_sheet(std::string_view name) override {
    return get_sheet(name == first_ ? 0 : 1);
  }
  sheet::iface::import_sheet* get_sheet(sheet::sheet_t index) override {
    return index == 0 ? &cells_ : &others_;
  }
  void finalize() override {}

 private:
  Texts texts_;
  XlsxFormats formats_;
  Origin origin_;
  CellNames names_;
  std::string first_;  ///< name
  Cells cells_{texts_, formats_, origin_, Cells::Kind::kRead};
  Cells others_{texts_, formats_, origin_, Cells::Kind::kPassedOver};
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
  Workbook workbook;
  try {
    orcus::orcus_xlsx(&workbook).read_file(file.string());
  } catch (const std::exception&) {
    throw Refusal("这个工作簿读不出来：" + file.string() +
                  "。请用表格软件打开，另存为 .xlsx 文件。");
  }
  return std::make_unique<WorkbookRows>(workbook.written());
}
