#pragma once

#include <functional>

#include "shop/GoodsMapping.h"
#include "shop/GoodsPreview.h"
#include "shop/SheetReader.h"
#include "shop/WriteSlices.h"

class Connection;

/// A goods sheet with its headings read: what follows are its goods.
struct OpenedSheet {
  std::unique_ptr<SheetReader> reader;
  std::vector<std::string> headings;
};
/// Throws Refusal, as openSheet does, also for a sheet without headings.
OpenedSheet openGoodsSheet(const std::filesystem::path& file);
OpenedSheet readGoodsSheet(std::istream& text);

/// Hears the part that is done, 0 ... 1, many times a second at most; false ends the work.
using GoOn = std::function<bool(double part)>;

/// What the sheet would do to the shop; writes nothing. Nothing when it was ended. Throws Failure
/// for a sheet that cannot be read.
std::optional<GoodsPreview> previewGoods(Connection& connection, SheetReader& sheet,
                                         const GoodsMapping& mapping, const GoOn& goOn);
/// Brings the sheet into the shop, all or nothing: nothing is written when a row is refused
/// (GoodsPreview::mayBeWritten), when reading was ended (then it gives nothing) or when something
/// fails; and once all rows have been read, all of them will be written, by this program or the
/// next one that opens the file. Other programs can write meanwhile (see WriteSlices). Throws
/// Failure.
[[nodiscard]] std::optional<GoodsPreview> importGoods(Connection& connection, SheetReader& sheet,
                                                      const GoodsMapping& mapping,
                                                      WriteSlices::Company company,
                                                      const GoOn& goOn);
