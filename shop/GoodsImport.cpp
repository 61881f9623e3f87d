#include "shop/GoodsImport.h"

#include <utility>

#include "base/Words.h"
#include "shop/GoodsComparison.h"
#include "shop/GoodsRow.h"
#include "shop/GoodsStage.h"
#include "shop/Refusal.h"
#include "store/Connection.h"
#include "store/Snapshot.h"

namespace {

constexpr int kRowsAtOnce = 500;
constexpr double kReadingShare = 0.4;  // of an import's time

OpenedSheet withHeadings(std::unique_ptr<SheetReader> reader) {
  OpenedSheet sheet{std::move(reader), {}};
  if (!sheet.reader->next(sheet.headings)) throw Refusal(Words::tr("表是空的，第一行应是列名。"));
  return sheet;
}

/// Reads and compares a sheet.
class Reading {
 public:
  Reading(Connection& connection, SheetReader& sheet, const GoodsMapping& mapping)
      : connection_(connection), sheet_(sheet), mapping_(mapping), comparison_(connection) {
    if (const std::string fault = mapping.fault(); !fault.empty()) throw Refusal(fault);
  }

  /// Compares the next rows; false at the end. One look at the data file for all of them: each
  /// look takes the engine two locks.
  bool next() {
    const Snapshot look(connection_);
    goods_.clear();
    for (int row = 0; row < kRowsAtOnce; ++row) {
      if (!sheet_.next(fields_)) return false;
      compareRow();
    }
    return true;
  }
  /// What the rows of the last call write.
  std::vector<GoodsToWrite>& goods() { return goods_; }
  const GoodsPreview& preview() const { return preview_; }

 private:
  void compareRow() {
    if (const std::string refusal = row_.read(fields_, mapping_); !refusal.empty()) {
      preview_.refuse(sheet_.line(), refusal);
    } else if (auto goods = comparison_.compare(row_, sheet_.line(), preview_)) {
      goods_.push_back(*std::move(goods));
    }
  }

  Connection& connection_;
  SheetReader& sheet_;
  const GoodsMapping& mapping_;
  GoodsComparison comparison_;
  GoodsPreview preview_;
  GoodsRow row_;
  std::vector<std::string> fields_;
  std::vector<GoodsToWrite> goods_;
};

/// Reads the sheet to its end; what it writes goes to `taker`. Nothing when it was ended.
std::optional<GoodsPreview> readAll(Connection& connection, SheetReader& sheet,
                                    const GoodsMapping& mapping, const GoOn& goOn,
                                    const std::function<void(GoodsToWrite)>& taker) {
  Reading reading(connection, sheet, mapping);
  bool isMore = true;
  while (isMore) {
    if (!goOn(sheet.progress())) return std::nullopt;
    isMore = reading.next();
    if (!reading.preview().mayBeWritten()) continue;  // the rest is read for its faults only
    for (GoodsToWrite& goods : reading.goods()) taker(std::move(goods));
  }
  return reading.preview();
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
  return readAll(connection, sheet, mapping, goOn, [](const auto&) {});
}

std::optional<GoodsPreview> importGoods(Connection& connection, SheetReader& sheet,
                                        const GoodsMapping& mapping, WriteSlices::Company company,
                                        const GoOn& goOn) {
  const auto always = [](double) { return true; };
  finishGoods(connection, company, always);  // of an import that was ended
  std::optional<GoodsPreview> preview;
  {
    GoodsStage stage(connection, company);
    preview = readAll(
        connection, sheet, mapping, [&](double part) { return goOn(part * kReadingShare); },
        [&](GoodsToWrite goods) { stage.add(std::move(goods)); });
    if (!preview || !preview->mayBeWritten() || preview->changesNothing()) return preview;
    stage.seal();
  }
  finishGoods(connection, company, [&](double part) {
    static_cast<void>(goOn(kReadingShare + part * (1 - kReadingShare)));
    return true;
  });
  return preview;
}
