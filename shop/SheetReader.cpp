#include "shop/SheetReader.h"

#include <algorithm>
#include <fstream>
#include <utility>

#include "base/CsvReader.h"
#include "base/Text.h"
#include "base/Words.h"
#include "shop/Refusal.h"
#include "shop/XlsxSheet.h"

namespace {

constexpr std::string_view kZip = "PK\x03\x04";             // what a workbook is packed in
constexpr std::string_view kCompound = "\xD0\xCF\x11\xE0";  // the workbooks of before

class CsvSheet : public SheetReader {
 public:
  explicit CsvSheet(std::istream& text) : reader_(text, CsvReader::Accepts::kAnySheet) {}
  explicit CsvSheet(std::unique_ptr<std::istream> owned) : CsvSheet(*owned) {
    owned_ = std::move(owned);
  }

  bool next(std::vector<std::string>& fields) override {
    while (reader_.next(fields)) {
      if (!holdsNothing(fields)) return true;
    }
    return false;
  }
  std::int64_t line() const override { return reader_.line(); }
  double progress() const override { return reader_.progress(); }

 private:
  std::unique_ptr<std::istream> owned_;
  CsvReader reader_;
};

}  // namespace

bool holdsNothing(const std::vector<std::string>& fields) {
  return std::ranges::all_of(fields, [](const auto& field) { return trimmed(field).empty(); });
}

std::unique_ptr<SheetReader> openSheet(const std::filesystem::path& file) {
  if (std::error_code unreadable; !std::filesystem::is_regular_file(file, unreadable)) {
    throw Refusal(Words::tr("没有这个文件，或者不是普通文件：%1", file.string()));
  }
  auto text = std::make_unique<std::ifstream>(file, std::ios::binary);
  if (!*text) throw Refusal(Words::tr("文件读不出来：%1", file.string()));
  std::string beginning(kZip.size(), '\0');
  text->read(beginning.data(), static_cast<std::streamsize>(beginning.size()));
  if (beginning == kZip) return openWorkbook(file);
  if (beginning == kCompound) {
    throw Refusal(
        Words::tr("这是旧格式的工作簿（.xls）或者加了密码，请另存为不加密码的 .xlsx 文件。"));
  }
  text->clear();
  text->seekg(0);
  return std::make_unique<CsvSheet>(std::move(text));
}

std::unique_ptr<SheetReader> readSheet(std::istream& text) {
  return std::make_unique<CsvSheet>(text);
}
