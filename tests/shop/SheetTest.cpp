#include <gmock/gmock.h>
#include <xlsxwriter.h>

#include <fstream>
#include <string>
#include <vector>

#include "TemporaryFolder.h"
#include "base/Gbk.h"
#include "base/Text.h"
#include "base/Utf8.h"
#include "shop/GoodsMapping.h"
#include "shop/Refusal.h"
#include "shop/SheetReader.h"

namespace {

using Rows = std::vector<std::vector<std::string>>;

std::string utf16(const std::string& utf8, bool bigEndian) {
  const std::string order = bigEndian ? "\xFE\xFF" : "\xFF\xFE";
  std::string bytes = order;
  for (std::size_t place = 0; place < utf8.size();) {
    const Utf8Character character = firstUtf8(std::string_view(utf8).substr(place));
    place += character.length;
    const char high = static_cast<char>(character.code >> 8);
    const char low = static_cast<char>(character.code);
    bytes += bigEndian ? std::string{high, low} : std::string{low, high};
  }
  return bytes;
}

struct SheetTest : testing::Test {
  TemporaryFolder folder;

  void writeWorkbook(std::uint8_t inCells) const {
    lxw_workbook_options options = {};
    options.constant_memory = inCells;
    lxw_workbook* book = workbook_new_opt(folder.file("sheet.xlsx").c_str(), &options);
    lxw_worksheet* sheet = workbook_add_worksheet(book, nullptr);
    workbook_add_worksheet(book, nullptr);
    const auto format = [book](const char* code) {
      lxw_format* made = workbook_add_format(book);
      format_set_num_format(made, code);
      return made;
    };
    lxw_datetime day = {2026, 11, 22, 0, 0, 0};
    worksheet_write_string(sheet, 0, 0, "条码", nullptr);
    worksheet_write_string(sheet, 0, 6, "名称", nullptr);
    worksheet_write_number(sheet, 2, 0, 6991373001449.0, nullptr);
    worksheet_write_number(sheet, 2, 1, 42, format("0000000000000"));
    worksheet_write_number(sheet, 2, 2, 123456789012345678.0, nullptr);
    worksheet_write_number(sheet, 2, 3, 0.1 + 0.2, format("0.00"));
    worksheet_write_datetime(sheet, 2, 4, &day, format("yyyy\"年\"m\"月\"d\"日\""));
    worksheet_write_string(sheet, 2, 6, "A&B <c>", nullptr);
    worksheet_write_formula_num(sheet, 2, 5, "=B3*2", nullptr, 84);
    workbook_close(book);
  }
  Rows read(const std::string& name) {
    const auto sheet = openSheet(folder.file(name));
    Rows rows;
    for (std::vector<std::string> fields; sheet->next(fields);) {
      rows.push_back(fields);
      rows.back().insert(rows.back().begin(), std::to_string(sheet->line()));
    }
    return rows;
  }
};

TEST_F(SheetTest, IsReadInEveryEncodingAndWithEverySeparator) {
  const Rows expected = {{"1", "条码", "名称", "零售价"}, {"3", "0012", "面 \"大\"", "4.5"}};
  for (const char* separator : {",", ";", "\t"}) {
    const std::string text =
        replaced("条码|名称|零售价\r\n\r\n0012|\"面 \"\"大\"\"\"|4.5\r\n||\r\n", "|", separator);
    const std::string encoded[] = {text, "\xEF\xBB\xBF" + text, gbk::encode(text),
                                   utf16(text, false), utf16(text, true)};
    for (const std::string& bytes : encoded) {
      std::ofstream(folder.file("sheet.csv"), std::ios::binary) << bytes;
      EXPECT_EQ(read("sheet.csv"), expected) << separator << bytes;
    }
  }
}

// With its texts in a list of their own, as spreadsheets write it, and each in its cell.
TEST_F(SheetTest, MeansInAWorkbookWhatTheWorkbookMeans) {
  for (const std::uint8_t inCells : {LXW_FALSE, LXW_TRUE}) {
    writeWorkbook(inCells);
    EXPECT_EQ(read("sheet.xlsx"), (Rows{{"1", "条码", "", "", "", "", "", "名称"},
                                        {"3", "6991373001449", "0000000000042", "1.23457E+17",
                                         "0.3", "2026-11-22", "84", "A&B <c>"}}))
        << int{inCells};
  }
  EXPECT_FALSE(columnOf(GoodsField::kBarcode).valueOf("1.23457E+17")) << "its digits are lost";
  for (const char* bytes : {"PK\x03\x04 no workbook", "\xD0\xCF\x11\xE0\xA1"}) {
    std::ofstream(folder.file("bad.xlsx"), std::ios::binary) << bytes;
    EXPECT_THROW(read("bad.xlsx"), Refusal);
  }
}

// Read piece by piece, a row may lie across two of them, and the fault in a later one.
TEST_F(SheetTest, ALargeWorkbookIsReadToItsEndOrRefused) {
  constexpr int kRows = 20'000;
  lxw_workbook* book = workbook_new(folder.file("sheet.xlsx").c_str());
  lxw_worksheet* sheet = workbook_add_worksheet(book, nullptr);
  for (int row = 0; row < kRows; ++row) {
    worksheet_write_string(sheet, row, 0, ("商品 " + std::to_string(row)).c_str(), nullptr);
    worksheet_write_number(sheet, row, 1, row, nullptr);
  }
  workbook_close(book);
  const Rows rows = read("sheet.xlsx");
  ASSERT_EQ(rows.size(), kRows);
  for (int row = 0; row < kRows; ++row) {
    const std::string number = std::to_string(row);
    ASSERT_EQ(rows[row], (Rows::value_type{std::to_string(row + 1), "商品 " + number, number}));
  }
  std::fstream file(folder.file("sheet.xlsx"), std::ios::in | std::ios::out | std::ios::binary);
  std::string bytes(std::istreambuf_iterator<char>(file), {});
  const std::size_t part = bytes.find("xl/worksheets/sheet1.xml");
  file.seekp(static_cast<std::streamoff>(part + 100'000));
  file << "a scratch on the disk";
  file.close();
  const auto opened = openSheet(folder.file("sheet.xlsx"));
  std::vector<std::string> fields;
  EXPECT_TRUE(opened->next(fields));
  EXPECT_THROW(while (opened->next(fields)){}, Refusal);
}

TEST(GoodsMappingTest, GuessesWhatOthersCallIt) {
  const GoodsMapping guessed =
      guessMapping({"序号", "国际条码", "品 名", "零售单价（元）", "单价", "进货价", "商品分类"});
  std::string fields;
  for (const auto& column : guessed.columns)
    fields.append(column.field ? headingOf(*column.field) : "-").append(" ");
  EXPECT_EQ(fields, "- 条码 名称 零售价 - 进价 类别 ");
  EXPECT_TRUE(guessed.isGuessed);
  EXPECT_FALSE(guessMapping({"条码", " 名称 "}).isGuessed);
  EXPECT_NE(guessMapping({"名称"}).fault(), "");
}

}  // namespace
