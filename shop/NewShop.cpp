#include "shop/NewShop.h"

#include <fstream>
#include <sstream>
#include <tuple>

#include "base/CsvRow.h"
#include "base/NumberText.h"
#include "base/Text.h"
#include "saleslib/ClsSysParam.h"
#include "saleslib/Journal.h"
#include "shop/DemoShop.h"
#include "shop/Importer.h"
#include "shop/Refusal.h"
#include "store/Connection.h"
#include "store/DataFile.h"
#include "store/DataFileRestore.h"
#include "store/StoreError.h"
#include "store/Transaction.h"

namespace fs = std::filesystem;

namespace {

constexpr int kShownGoods = 6;

void setParameters(Connection& connection, const NewShop& shop) {
  ClsSysParam parameters;
  parameters.Conn(connection);
  for (const auto& [name, value] : shop.parameters) {
    const std::string refusal = parameters.set(name, value);
    if (!refusal.empty()) throw Refusal(refusal);
  }
}

Imported import(Connection& connection, const std::string& table, std::istream& text,
                const Clock& clock) {
  return Importer(connection, tableNamed(table, clock()), [](std::int64_t, double) {}).run(text);
}

std::vector<std::string> importFiles(Connection& connection, const NewShop& shop,
                                     const Clock& clock) {
  std::vector<std::string> doubts;
  for (const std::string& table : tableNames()) {
    const auto file = shop.files.find(table);
    if (file == shop.files.end()) continue;
    const std::string name = file->second.string();
    std::ifstream text(name, std::ios::binary);
    if (!fs::is_regular_file(file->second) || !text) throw Refusal("文件读不出来：" + name);
    try {
      for (const std::string& doubt : import(connection, table, text, clock).doubts)
        doubts.push_back(file->second.filename().string() + " " + doubt);
    } catch (const Refusal& refusal) {
      throw Refusal(name + "：" + refusal.what());
    }
  }
  return doubts;
}

/// The typed goods as a list for a table.
std::istringstream listOf(const std::vector<TypedGoods>& goods,
                          std::initializer_list<const char*> columns,
                          std::initializer_list<std::string TypedGoods::*> fields) {
  CsvRow rows;
  for (const char* column : columns) rows.add(column);
  rows.end();
  for (const TypedGoods& each : goods) {
    for (const auto field : fields) rows.add(trimmed(each.*field));
    rows.end();
  }
  return std::istringstream(rows.text());
}

void addTypedGoods(Connection& connection, const NewShop& shop, const Clock& clock) {
  if (shop.goods.empty()) return;
  constexpr auto kBarcode = &TypedGoods::barcode;
  constexpr auto kName = &TypedGoods::name;
  constexpr auto kPrice = &TypedGoods::price;
  std::istringstream master = listOf(shop.goods, {"f_spbm", "f_sptm", "f_spmc", "f_xsdj"},
                                     {kBarcode, kBarcode, kName, kPrice});
  std::istringstream prices =
      listOf(shop.goods, {"sptm", "spbm", "spmc", "xsdj"}, {kBarcode, kBarcode, kName, kPrice});
  try {
    import(connection, "spda", master, clock);
    import(connection, "tmda", prices, clock);
  } catch (const Refusal& refusal) {
    throw Refusal(std::string("录入的商品（第一种是第 2 行）：") + refusal.what());
  }
}

std::vector<std::string> addGoods(Connection& connection, const NewShop& shop, const Clock& clock) {
  std::vector<std::string> doubts = importFiles(connection, shop, clock);
  addTypedGoods(connection, shop, clock);
  return doubts;
}

void fillShop(Connection& connection, const NewShop& shop, const Clock& clock) {
  if (shop.from == NewShop::From::kDemo) return fillDemoShop(connection, clock);
  Transaction all(connection);
  setParameters(connection, shop);
  for (const NewOperator& person : shop.operators) addOperator(connection, person);
  addGoods(connection, shop, clock);
  all.commit();
}

// The file is looked at before the settings are stored: afterwards hardly anything can fail.
void restore(const NewShop& shop, const DataSource& target,
             const std::function<void()>& storeSettings) {
  std::error_code unreadable;
  if (fs::exists(target.path, unreadable))
    throw StoreError("已经有这个文件，不会覆盖：" + target.path.string());
  requireSoundDataFile({shop.backup, target.password}, Soundness::kEveryPage);
  storeSettings();
  static_cast<void>(restoreDataFile(shop.backup, target, "old"));
  Journal(*openDataFile(target)).note(EntryKind::kRestored, {}, {{"backup", shop.backup.string()}});
}

std::string fieldRefusal(const Table& table, const char* column, const std::string& field,
                         const char* name) {
  const Column& wanted = table.columns[table.indexOf(column).value()];
  if (wanted.valueOf(field)) return {};
  return std::string(name).append(wanted.expectation());
}

}  // namespace

void NewShop::setRounding(Rounding rounding) {
  parameters["RoundJiao"] = rounding == Rounding::kJiao ? "1" : "0";
  parameters["RoundYuan"] = rounding == Rounding::kYuan ? "1" : "0";
}

const std::vector<std::string>& shopTexts() {
  static const std::vector<std::string> names = {"ShopName",     "ReceiptText1", "ReceiptText2",
                                                 "ReceiptText3", "ReceiptText4", "ReceiptText5",
                                                 "ReceiptText6"};
  return names;
}

const std::vector<std::string>& shopSwitches() {
  static const std::vector<std::string> names = {"CheckPayment", "PhonePay", "BackupOnExit"};
  return names;
}

std::string refusalOf(const TypedGoods& goods) {
  const Table table = tableNamed("tmda", {});
  for (const auto& [column, field, name] : {std::tuple("sptm", trimmed(goods.barcode), "条码"),
                                            std::tuple("spmc", trimmed(goods.name), "商品名称"),
                                            std::tuple("xsdj", trimmed(goods.price), "零售价")}) {
    const std::string refusal = fieldRefusal(table, column, field, name);
    if (!refusal.empty()) return refusal + "。";
  }
  return {};
}

GoodsTrial tryGoods(const NewShop& shop, const Clock& clock) {
  const std::unique_ptr<Connection> scratch = scratchDataFile(fs::temp_directory_path());
  GoodsTrial trial;
  try {
    trial.doubts = addGoods(*scratch, shop, clock);
  } catch (const Refusal& refusal) {
    trial.refusal = refusal.what();
    return trial;
  }
  Rows rows = scratch->query("select sptm, spmc, xsdj from tmda order by id");
  while (rows.next()) {
    if (trial.count++ >= kShownGoods) continue;
    const Currency price = rows.currency("xsdj").value_or(Currency());
    trial.first.push_back({rows.text("sptm"), rows.text("spmc"), twoDecimals(price)});
  }
  return trial;
}

void makeShop(const NewShop& shop, const DataSource& target, const Clock& clock,
              const std::function<void()>& storeSettings) {
  if (shop.from == NewShop::From::kBackup) return restore(shop, target, storeSettings);
  createDataFile(target, [&](Connection& made) {
    fillShop(made, shop, clock);
    storeSettings();
  });
}
