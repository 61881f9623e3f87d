#include "shop/GoodsImport.h"

#include "shop/GoodsComparison.h"
#include "shop/GoodsRow.h"
#include "shop/GoodsStage.h"
#include "shop/Refusal.h"
#include "store/Connection.h"

namespace {

constexpr std::int64_t kRowsPerProgress = 500;
constexpr double kReadingShare = 0.5;  // of an import's time

OpenedSheet withHeadings(std::unique_ptr<SheetReader> reader) {
  OpenedSheet sheet{std::move(reader), {}};
  if (!sheet.reader->next(sheet.headings)) throw Refusal("表是空的，第一行应是列名。");
  return sheet;
}

/// Reads the sheet to its end; each row that writes something goes to `taker`. False when it was
/// ended.
bool readAll(Connection& connection, SheetReader& sheet, const GoodsMapping& mapping,
             const GoOn& goOn, GoodsPreview& preview,
             const std::function<void(GoodsToWrite)>& taker) {
  if (const std::string fault = mapping.fault(); !fault.empty()) throw Refusal(fault);
  GoodsComparison comparison(connection);
  GoodsRow row;
  std::vector<std::string> fields;
  for (std::int64_t rows = 0; sheet.next(fields); ++rows) {
    if (rows % kRowsPerProgress == 0 && !goOn(sheet.progress())) return false;
    if (const std::string refusal = row.read(fields, mapping); !refusal.empty()) {
      preview.refuse(sheet.line(), refusal);
    } else if (auto goods = comparison.compare(row, sheet.line(), preview)) {
      taker(*std::move(goods));
    }
  }
  return true;
}

}  // namespace

OpenedSheet openGoodsSheet(const std::filesystem::path& file) {
  return withHeadings(openSheet(file));
}

OpenedSheet readGoodsSheet(std::istream& text) {
  return withHeadings(readSheet(text));
}

std::optional<GoodsPreview> previewGoods(Connection& connection, SheetReader& sheet,
                                         const GoodsMapping& mapping, const GoOn& goOn) {
  GoodsPreview preview;
  const bool isWhole = readAll(connection, sheet, mapping, goOn, preview, [](const auto&) {});
  return isWhole ? std::optional(std::move(preview)) : std::nullopt;
}

std::optional<GoodsPreview> importGoods(Connection& connection, SheetReader& sheet,
                                        const GoodsMapping& mapping, WriteSlices::Company company,
                                        const GoOn& goOn) {
  const auto always = [](double) { return true; };
  finishGoods(connection, company, always);  // of an import that was ended
  GoodsPreview preview;
  {
    GoodsStage stage(connection, company);
    const auto reading = [&](double part) { return goOn(part * kReadingShare); };
    const auto take = [&](GoodsToWrite goods) {
      if (preview.mayBeWritten()) stage.add(std::move(goods));
    };
    if (!readAll(connection, sheet, mapping, reading, preview, take)) return std::nullopt;
    if (!preview.mayBeWritten() || preview.changesNothing()) return preview;
    stage.seal();
  }
  finishGoods(connection, company, [&](double part) {
    static_cast<void>(goOn(kReadingShare + part * (1 - kReadingShare)));
    return true;
  });
  return preview;
}
