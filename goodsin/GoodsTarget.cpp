#include "goodsin/GoodsTarget.h"

#include <filesystem>

#include "store/Connection.h"
#include "store/DataFile.h"

GoodsTarget openShop(Connection& connection) {
  const DataSource source = connection.source();
  const ConnectionUser user{.number = [who = connection.user().number()] { return who; },
                            .clock = connection.user().clock};
  return {[&connection](const auto& headings) { return mappingFor(connection, headings); },
          [&connection](const auto& name, const auto& mapping) {
            saveMapping(connection, name, mapping);
          },
          [source](const GoodsSheet& sheet, const GoOn& goOn) {
            const auto own = openDataFile(source);
            return previewGoods(*own, *openGoodsSheet(sheet.file).reader, sheet.mapping, goOn);
          },
          [source, user](const GoodsSheet& sheet, const GoOn& goOn) {
            const auto own = openDataFile(source);
            own->setUser(user);
            return importGoods(*own, *openGoodsSheet(sheet.file).reader, sheet.mapping,
                               WriteSlices::Company::kOthers, goOn);
          }};
}

// A mapping's name is tried where nobody keeps it, so that a bad one is said at once.
GoodsTarget shopToBe() {
  return {guessMapping,
          [](const auto& name, const auto& mapping) {
            const auto scratch = scratchDataFile(std::filesystem::temp_directory_path());
            saveMapping(*scratch, name, mapping);
          },
          previewForNewShop,
          {}};
}
