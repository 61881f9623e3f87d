#include <xlsxwriter.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <memory>

#include "base/Gbk.h"
#include "base/WholeFile.h"
#include "takings/ReportFile.h"

namespace {

using Kind = ReportColumn::Kind;

/// In columns of the spreadsheet's font.
constexpr std::size_t kNarrowest = 8;
constexpr std::size_t kWidest = 60;
constexpr std::size_t kBesideText = 2;

double asNumber(Currency money) {
  return static_cast<double>(money.scaled()) / Currency::kScale;
}

class Book {
 public:
  explicit Book(WholeFile& file) : file_(file), book_(workbook_new(file.path().c_str())) {
    if (!book_) file_.fail("内存不足。");
    title_ = format();
    format_set_bold(title_);
    heading_ = format();
    format_set_bold(heading_);
    format_set_bottom(heading_, LXW_BORDER_THIN);
  }

  void addHead(const Report& report, const ReportSection& section) {
    sheet_ = workbook_add_worksheet(book_.get(), section.title.c_str());
    if (!sheet_) file_.fail("内存不足。");
    row_ = 0;
    writeLine(report.title + "：" + section.title, title_);
    for (const std::string& line : report.above) writeLine(line, nullptr);
    if (!section.note.empty()) writeLine(section.note, nullptr);
    lxw_col_t column = 0;
    for (const ReportColumn& each : section.columns) {
      setWidth(column, section, column);
      writeText(column++, each.title, heading_);
    }
    worksheet_freeze_panes(sheet_, ++row_, 0);
  }

  void addRow(const std::vector<ReportCell>& row, const ReportSection& section, bool isTotals) {
    for (std::size_t column = 0; column < row.size(); ++column) {
      write(static_cast<lxw_col_t>(column), row[column], section.columns[column].kind, isTotals);
    }
    ++row_;
  }

  void close() {
    errno = 0;
    const lxw_error error = workbook_close(book_.release());
    if (error != LXW_NO_ERROR && errno != 0) file_.failWith(errno);
    check(error);
  }

 private:
  struct Closer {
    void operator()(lxw_workbook* book) const { lxw_workbook_free(book); }
  };

  lxw_format* format() {
    lxw_format* made = workbook_add_format(book_.get());
    if (!made) file_.fail("内存不足。");
    return made;
  }

  /// A share is a number of per cent there, too.
  lxw_format* formatOf(Kind kind, bool isBold) {
    lxw_format*& made = formats_[static_cast<std::size_t>(kind)][isBold ? 1 : 0];
    if (made) return made;
    made = format();
    if (isBold) format_set_bold(made);
    if (kind == Kind::kMoney) format_set_num_format(made, "0.00");
    if (kind == Kind::kShare) format_set_num_format(made, "0.0%");
    return made;
  }

  void setWidth(lxw_col_t column, const ReportSection& section, std::size_t index) {
    std::size_t width = gbk::width(section.columns[index].title);
    const auto grow = [&](const std::vector<ReportCell>& row) {
      if (row.empty()) return;
      width = std::max(width, gbk::width(cellText(row[index], section.columns[index].kind)));
    };
    for (const auto& row : section.rows) grow(row);
    grow(section.totals);
    width = std::clamp(width + kBesideText, kNarrowest, kWidest);
    check(worksheet_set_column(sheet_, column, column, static_cast<double>(width), nullptr));
  }

  void writeLine(const std::string& text, lxw_format* format) {
    writeText(0, text, format);
    ++row_;
  }
  void writeText(lxw_col_t column, const std::string& text, lxw_format* format) {
    if (!text.empty()) check(worksheet_write_string(sheet_, row_, column, text.c_str(), format));
  }
  void writeNumber(lxw_col_t column, double number, lxw_format* format) {
    check(worksheet_write_number(sheet_, row_, column, number, format));
  }

  void write(lxw_col_t column, const ReportCell& cell, Kind kind, bool isTotals) {
    constexpr double kPerCent = 100;
    lxw_format* format = formatOf(kind, isTotals);
    if (const auto* text = std::get_if<std::string>(&cell)) writeText(column, *text, format);
    if (const auto* count = std::get_if<std::int64_t>(&cell))
      writeNumber(column, static_cast<double>(*count), formatOf(Kind::kCount, isTotals));
    if (const auto* quantity = std::get_if<double>(&cell))
      writeNumber(column, *quantity, formatOf(Kind::kQuantity, isTotals));
    if (const auto* money = std::get_if<Currency>(&cell))
      writeNumber(column, asNumber(*money) / (kind == Kind::kShare ? kPerCent : 1), format);
  }

  void check(lxw_error error) const {
    if (error != LXW_NO_ERROR) file_.fail("表格组件出错（" + std::to_string(error) + "）。");
  }

  WholeFile& file_;
  std::unique_ptr<lxw_workbook, Closer> book_;
  lxw_worksheet* sheet_ = nullptr;
  lxw_format* title_ = nullptr;
  lxw_format* heading_ = nullptr;
  std::array<std::array<lxw_format*, 2>, 5> formats_ = {};  ///< by kind; bold
  lxw_row_t row_ = 0;
};

}  // namespace

void xlsxReport(WholeFile& file, const Report& report) {
  Book book(file);
  for (const ReportSection& section : report.sections) {
    book.addHead(report, section);
    for (const auto& row : section.rows) book.addRow(row, section, false);
    if (!section.totals.empty()) book.addRow(section.totals, section, true);
  }
  book.close();
}
