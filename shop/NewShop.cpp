#include "shop/NewShop.h"

#include <algorithm>
#include <sstream>

#include "base/Words.h"
#include "saleslib/ClsSysParam.h"
#include "saleslib/Journal.h"
#include "shop/DemoShop.h"
#include "shop/NewFolder.h"
#include "shop/Refusal.h"
#include "store/Connection.h"
#include "store/DataFile.h"
#include "store/DataFileRestore.h"
#include "store/StoreError.h"
#include "store/Transaction.h"

namespace fs = std::filesystem;

namespace {

/// Thrown out of the midst of it all, which takes everything back; no failure that anybody hears.
struct Ended {};

constexpr const char* kJournal = "Journal";

void setParameter(Connection& connection, const std::string& name, const std::string& value) {
  ClsSysParam parameters;
  parameters.Conn(connection);
  const std::string refusal = parameters.set(name, value);
  if (!refusal.empty()) throw Refusal(refusal);
}

void import(Connection& connection, SheetReader& sheet, const GoodsMapping& mapping,
            const std::string& name, const GoOn& goOn) {
  const auto orEnd = [&goOn](double part) {
    if (!goOn(part)) throw Ended();
    return true;
  };
  const GoodsPreview written =
      importGoods(connection, sheet, mapping, WriteSlices::Company::kAlone, orEnd).value();
  if (written.mayBeWritten()) return;
  const GoodsPreview::Complaint& first = written.refused.front();
  throw Refusal(Words::tr("%1 第 %2 行：%3。", name, first.line, first.reason));
}

// What is typed is later than the sheet, and right where the two differ.
void addGoods(Connection& connection, const NewShop& shop, const GoOn& goOn) {
  if (shop.sheet) {
    const OpenedSheet opened = openGoodsSheet(shop.sheet->file);
    import(connection, *opened.reader, shop.sheet->mapping, shop.sheet->file.string(), goOn);
    if (!shop.sheet->mappingName.empty())
      saveMapping(connection, shop.sheet->mappingName, shop.sheet->mapping);
  }
  if (shop.goods.empty()) return;
  std::istringstream text(sheetOf(shop.goods));
  const OpenedSheet opened = readGoodsSheet(text);
  import(connection, *opened.reader, guessMapping(opened.headings), Words::tr("录入的商品（第一种是第 2 行）"),
         [](double) { return true;
});
}  // namespace

void fillShop(Connection& connection, const NewShop& shop, const Clock& clock, const GoOn& goOn) {
  if (shop.from == NewShop::From::kDemo) return fillDemoShop(connection, clock);
  ConnectionUser maker;
  maker.clock = clock;
  connection.setUser(std::move(maker));
  Transaction all(connection);
  for (const auto& [name, value] : shop.parameters)
    if (name != kJournal) setParameter(connection, name, value);
  for (const NewOperator& person : shop.operators) addOperator(connection, person);
  addGoods(connection, shop, goOn);
  // What is done from then on: the shop as it was filled is what its journal begins with.
  const auto journal = shop.parameters.find(kJournal);
  if (journal != shop.parameters.end()) setParameter(connection, kJournal, journal->second);
  all.commit();
}

// The file is looked at before the settings are stored: afterwards hardly anything can fail.
void restore(const NewShop& shop, const DataSource& target,
             const std::function<void()>& storeSettings) {
  std::error_code unreadable;
  if (fs::exists(target.path, unreadable))
    throw StoreError(Words::tr("已经有这个文件，不会覆盖：%1", target.path.string()));
  requireSoundDataFile({shop.backup, target.password}, Soundness::kEveryPage);
  storeSettings();
  static_cast<void>(restoreDataFile(shop.backup, target, "old"));
  Journal(*openDataFile(target)).note(EntryKind::kRestored, {}, {{"backup", shop.backup.string()}});
}

}  // namespace

NewShop::NewShop() {
  for (const SetupQuestion& question : setupQuestions()) answer(question, question.sensible);
}

const std::string& NewShop::answerTo(const SetupQuestion& question) const {
  static const std::string kNone;
  if (question.isOfShop()) {
    const auto found = parameters.find(question.key);
    return found == parameters.end() ? kNone : found->second;
  }
  const auto found = settings.find({question.section, question.key});
  return found == settings.end() ? kNone : found->second;
}

void NewShop::answer(const SetupQuestion& question, std::string value) {
  if (question.isOfShop()) {
    parameters[question.key] = std::move(value);
  } else if (value.empty()) {
    settings.erase({question.section, question.key});
  } else {
    settings[{question.section, question.key}] = std::move(value);
  }
}

std::size_t NewShop::add(const TypedGoods& typed) {
  const auto before = std::ranges::find(goods, typed.code, &TypedGoods::code);
  const auto place = static_cast<std::size_t>(before - goods.begin());
  if (before == goods.end()) {
    goods.push_back(typed);
  } else {
    *before = typed;
  }
  return place;
}

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

std::optional<GoodsPreview> previewForNewShop(const GoodsSheet& sheet, const GoOn& goOn) {
  const auto scratch = scratchDataFile(fs::temp_directory_path());
  const OpenedSheet opened = openGoodsSheet(sheet.file);
  return previewGoods(*scratch, *opened.reader, sheet.mapping, goOn);
}

bool makeShop(const NewShop& shop, const DataSource& target, const Clock& clock,
              const std::function<void()>& storeSettings, const GoOn& goOn) {
  const NewFolder folder(target.path.parent_path());
  if (shop.from == NewShop::From::kBackup) {
    restore(shop, target, storeSettings);
    return true;
  }
  try {
    createDataFile(target, [&](Connection& made) {
      fillShop(made, shop, clock, goOn);
      storeSettings();
    });
    return true;
  } catch (const Ended&) {
    return false;
  }
}
