// Lists of goods from other programs: read as rows, and imported into a shop.
#include <stdlib.h>

#include <filesystem>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "Target.h"
#include "base/CsvReader.h"
#include "base/CsvRow.h"
#include "shop/Importer.h"
#include "store/Connection.h"
#include "store/DataFile.h"
#include "store/Transaction.h"

namespace {

/// A shop in a folder of its own for as long as the program runs.
class Shop {
 public:
  Shop() {
    std::string name = (std::filesystem::temp_directory_path() / "fuzz-XXXXXX").string();
    ensure(mkdtemp(name.data()) != nullptr, "a temporary folder");
    folder_ = name;
    connection_ = createDataFile({folder_ / "shop.db", ""});
  }
  ~Shop() {
    connection_.reset();
    std::filesystem::remove_all(folder_);
  }
  Connection& connection() { return *connection_; }

 private:
  std::filesystem::path folder_;
  std::unique_ptr<Connection> connection_;
};

using Row = std::vector<std::string>;

std::vector<Row> rowsOf(const std::string& text) {
  std::istringstream in(text);
  CsvReader reader(in);
  std::vector<Row> rows;
  for (Row row; reader.next(row);) rows.push_back(row);
  return rows;
}

void readAsAnySheet(const std::string& text) {
  std::istringstream in(text);
  try {
    CsvReader reader(in, CsvReader::Accepts::kAnySheet);
    for (Row row; reader.next(row);) ensure(!row.empty(), "a row has fields");
  } catch (const CsvError&) {
    return;
  }
}

void readAndWriteBack(const std::string& text) {
  std::vector<Row> rows;
  try {
    rows = rowsOf(text);
  } catch (const CsvError&) {
    return;
  }
  CsvRow written;
  for (const Row& row : rows) {
    for (const std::string& field : row) written.add(field);
    written.end();
  }
  ensure(rowsOf(std::string(kUtf8Mark) + written.text()) == rows, "rows written are rows read");
}

void import(const std::string& text) {
  static Shop shop;
  const Transaction takenBack(shop.connection());
  const DateTime now{{2026, 11, 22}, 9, 5, 3};
  for (const std::string& table : tableNames()) {
    std::istringstream in(text);
    try {
      static_cast<void>(Importer(shop.connection(), tableNamed(table, now), {}).run(in));
    } catch (const Failure&) {
      continue;
    }
  }
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(textOf(data, size));
  readAsAnySheet(text);
  readAndWriteBack(text);
  import(text);
  return 0;
}
