#include "shop/TypedGoods.h"

#include <filesystem>
#include <sstream>

#include "base/CsvRow.h"
#include "base/Text.h"
#include "base/Words.h"
#include "shop/GoodsImport.h"
#include "store/Connection.h"
#include "store/DataFile.h"

namespace {

constexpr std::size_t kLongestFragment = 5;  // of what the sale screen takes for no barcode

}  // namespace

std::string sheetOf(const std::vector<TypedGoods>& goods) {
  CsvRow rows;
  for (const GoodsField field : {GoodsField::kBarcode, GoodsField::kItemNumber, GoodsField::kName,
                                 GoodsField::kUnit, GoodsField::kPrice, GoodsField::kStock})
    rows.add(headingOf(field));
  rows.end();
  for (const TypedGoods& each : goods) {
    const std::string code = trimmed(each.code);
    rows.add(code);
    rows.add(characters(code) <= kLongestFragment ? code : "");
    for (const std::string& field : {each.name, each.unit, each.price, each.stock})
      rows.add(trimmed(field));
    rows.end();
  }
  return rows.text();
}

GoodsPreview tryGoods(const TypedGoods& goods) {
  const auto scratch = scratchDataFile(std::filesystem::temp_directory_path());
  std::istringstream text(sheetOf({goods}));
  const OpenedSheet sheet = readGoodsSheet(text);
  GoodsPreview preview =
      previewGoods(*scratch, *sheet.reader, guessMapping(sheet.headings), [](double) {
        return true;
      }).value();
  if (preview.mayBeWritten() && trimmed(goods.price).empty())
    preview.refuse(1, Words::tr("请写零售价"));
  return preview;
}
