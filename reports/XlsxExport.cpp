#include "reports/XlsxExport.h"

#include <xlsxwriter.h>

#include <QCoreApplication>
#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <memory>

#include "base/Discount.h"
#include "base/Gbk.h"
#include "base/WholeFile.h"
#include "reports/ResultList.h"

namespace {

/// In columns of the spreadsheet's font.
constexpr std::size_t kNarrowest = 6;
constexpr std::size_t kWidest = 60;
constexpr std::size_t kBesideText = 2;
/// Spreadsheets count days from here; earlier times stay texts.
constexpr int kFirstYear = 1900;

double asNumber(Currency money) {
  return static_cast<double>(money.scaled()) / Currency::kScale;
}
double asNumber(float discount) {
  return Discount(discount).factor();
}
template <class Number>
double asNumber(Number number) {
  return static_cast<double>(number);
}

lxw_datetime spreadsheetTime(const DateTime& time) {
  return {time.date.year, time.date.month, time.date.day,
          time.hour,      time.minute,     static_cast<double>(time.second)};
}

/// One workbook with one sheet, whose rows go to the disk as they are written.
class Sheet {
  Q_DECLARE_TR_FUNCTIONS(XlsxExport)

 public:
  Sheet(WholeFile& file, std::size_t rows) : file_(file) {
    if (rows > LXW_ROW_MAX) {
      fail(tr("表格文件最多 %1 行，请改存为 .csv 文件。").arg(LXW_ROW_MAX));
    }
    lxw_workbook_options options{};
    options.constant_memory = LXW_TRUE;
    book_.reset(workbook_new_opt(file.path().c_str(), &options));
    if (!book_) fail(tr("内存不足。"));
    // Files are Chinese whatever the screens speak.
    // untranslated: exported
    sheet_ = workbook_add_worksheet(book_.get(), "商品查询");
    if (!sheet_) fail(tr("内存不足。"));
    makeFormats();
  }

  void setWidth(lxw_col_t column, std::size_t textWidth) {
    const auto width = std::clamp(textWidth + kBesideText, kNarrowest, kWidest);
    check(worksheet_set_column(sheet_, column, column, static_cast<double>(width), nullptr));
  }
  void nextRow() { ++row_; }
  /// What was written so far stays in sight.
  void freeze() { worksheet_freeze_panes(sheet_, row_, 0); }

  void writeText(lxw_col_t column, const std::string& text, lxw_format* format = nullptr) {
    if (!text.empty()) check(worksheet_write_string(sheet_, row_, column, text.c_str(), format));
  }
  void writeNumber(lxw_col_t column, double number, lxw_format* format = nullptr) {
    check(worksheet_write_number(sheet_, row_, column, number, format));
  }
  void writeTime(lxw_col_t column, const DateTime& time) {
    lxw_datetime value = spreadsheetTime(time);
    check(worksheet_write_datetime(sheet_, row_, column, &value, time_));
  }

  lxw_format* heading() const { return heading_; }
  lxw_format* totals() const { return totals_; }

  /// Puts the file together.
  void close() {
    // The library does not look whether the disk took its rows.
    FILE* rows = sheet_->optimize_tmpfile;
    if (rows && (std::fflush(rows) != 0 || std::ferror(rows) != 0)) file_.failWith(ENOSPC);
    errno = 0;
    const lxw_error error = workbook_close(book_.release());
    if (error != LXW_NO_ERROR && errno != 0) file_.failWith(errno);
    check(error);
  }

 private:
  struct BookCloser {
    void operator()(lxw_workbook* book) const { lxw_workbook_free(book); }
  };

  void makeFormats() {
    heading_ = workbook_add_format(book_.get());
    format_set_bold(heading_);
    format_set_bottom(heading_, LXW_BORDER_THIN);
    totals_ = workbook_add_format(book_.get());
    format_set_font_color(totals_, LXW_COLOR_RED);
    time_ = workbook_add_format(book_.get());
    format_set_num_format(time_, "yyyy-mm-dd hh:mm:ss");
  }

  [[noreturn]] void fail(const QString& why) const { file_.fail(why.toStdString()); }
  void check(lxw_error error) const {
    if (error != LXW_NO_ERROR) fail(tr("表格组件出错（%1）。").arg(error));
  }

  WholeFile& file_;
  std::unique_ptr<lxw_workbook, BookCloser> book_;
  lxw_worksheet* sheet_ = nullptr;
  lxw_format* heading_ = nullptr;
  lxw_format* totals_ = nullptr;
  lxw_format* time_ = nullptr;
  lxw_row_t row_ = 0;
};

/// Widest text of each column: of the texts once per goods, of the numbers in every row.
std::array<std::size_t, kResultColumns> textWidths(const ResultList& list) {
  std::array<std::size_t, kResultColumns> widths{};
  const auto grow = [&](ResultColumn column, std::size_t width) {
    widths[column] = std::max(widths[column], width);
  };
  for (const auto column : {kColumnTime, kColumnUnitCost, kColumnCost, kColumnProfit})
    grow(column, column == kColumnTime ? std::size("2026-11-22 09:05:03") - 1 : 3);
  for (int column = 0; column < kResultColumns; ++column)
    grow(static_cast<ResultColumn>(column), gbk::width(resultColumns()[column].header));
  for (const SoldGoods& goods : list.goods()) {
    grow(kColumnCode, gbk::width(goods.code));
    grow(kColumnName, gbk::width(goods.name));
    grow(kColumnUnit, gbk::width(goods.unit));
    grow(kColumnBarcode, gbk::width(goods.barcode));
    grow(kColumnCategory, gbk::width(goods.category));
  }
  for (std::size_t row = 0; row < list.rowCount(); ++row) {
    for (int column = 0; column < kResultColumns; ++column)
      if (resultColumns()[column].isNumber)
        grow(static_cast<ResultColumn>(column),
             list.text(row, static_cast<ResultColumn>(column)).size());
  }
  return widths;
}

void writeTop(Sheet& sheet, const std::vector<std::string>& above) {
  for (const std::string& line : above) {
    sheet.writeText(0, line);
    sheet.nextRow();
  }
  lxw_col_t column = 0;
  for (const ResultColumnDesign& design : resultColumns())
    sheet.writeText(column++, design.header, sheet.heading());
  sheet.nextRow();
  sheet.freeze();
}

void writeLine(Sheet& sheet, const ResultList& list, std::size_t row) {
  const SoldLine& line = list.line(row);
  const auto number = [&](ResultColumn column, const auto& value) {
    if (value) sheet.writeNumber(column, asNumber(*value));
  };
  const auto text = [&](ResultColumn column) { sheet.writeText(column, list.text(row, column)); };
  if (line.time && line.time->date.year >= kFirstYear) {
    sheet.writeTime(kColumnTime, *line.time);
  } else {
    text(kColumnTime);
  }
  number(kColumnBill, line.billNo);
  for (const auto column : {kColumnCode, kColumnName, kColumnUnit}) text(column);
  number(kColumnQuantity, line.quantity);
  number(kColumnPrice, line.price);
  number(kColumnDiscount, line.discount);
  number(kColumnMoney, line.money);
  for (const auto column :
       {kColumnUnitCost, kColumnCost, kColumnProfit, kColumnBarcode, kColumnCategory})
    text(column);
}

void writeTotals(Sheet& sheet, const ResultList& list) {
  const std::size_t row = list.lineCount();
  const auto text = [&](ResultColumn column) {
    sheet.writeText(column, list.text(row, column), sheet.totals());
  };
  const auto sum = [&](ResultColumn column, const auto& value) {
    if (!value) return text(column);
    sheet.writeNumber(column, asNumber(*value), sheet.totals());
  };
  text(kColumnTime);
  sum(kColumnQuantity, list.totalQuantity());
  sum(kColumnMoney, list.totalMoney());
  text(kColumnCost);
  text(kColumnProfit);
}

}  // namespace

bool writeXlsx(WholeFile& file, const ExportTable& table, const ExportProgress& goOn) {
  const ResultList& list = table.list;
  Sheet sheet(file, table.above.size() + 1 + list.rowCount());
  lxw_col_t column = 0;
  for (const std::size_t width : textWidths(list)) sheet.setWidth(column++, width);
  writeTop(sheet, table.above);
  for (std::size_t row = 0; row < list.lineCount(); ++row) {
    if (row % kRowsPerProgress == 0 && !goOn(row)) return false;
    writeLine(sheet, list, row);
    sheet.nextRow();
  }
  writeTotals(sheet, list);
  sheet.close();
  return true;
}
