#pragma once

#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "base/DateTime.h"
#include "shop/GoodsImport.h"
#include "shop/Operators.h"
#include "shop/SetupQuestion.h"
#include "shop/TypedGoods.h"
#include "store/DataSource.h"

/// A goods sheet as it is to be brought in.
struct GoodsSheet {
  std::filesystem::path file;
  GoodsMapping mapping;
  std::string mappingName;  ///< to keep the mapping by; empty: it is not kept
};

/// What the owner answers at the first start; as it stands, with sensible answers.
struct NewShop {
  enum class From { kAnswers, kDemo, kBackup };
  From from = From::kAnswers;
  std::filesystem::path backup;  ///< for kBackup

  NewShop();
  /// What was answered to a question, and another answer to it.
  const std::string& answerTo(const SetupQuestion& question) const;
  void answer(const SetupQuestion& question, std::string value);

  // The rest is for kAnswers.
  /// Of the till on this machine, by section and key of its settings file; without those that are
  /// empty, which are not to be set.
  std::map<std::pair<std::string, std::string>, std::string> settings;
  /// By the names of ClsSysParam.
  std::map<std::string, std::string, std::less<>> parameters = {
      // untranslated: printed on the receipts
      {"ReceiptText1", "欢迎光临"},
      // untranslated: printed on the receipts
      {"ReceiptText3", "谢谢惠顾，欢迎再来！"},
      {"RoundJiao", "1"}};
  std::vector<NewOperator> operators;
  std::optional<GoodsSheet> sheet;
  std::vector<TypedGoods> goods;  ///< come after the sheet's
  /// In the place of those of the same code; gives the place.
  std::size_t add(const TypedGoods& typed);

  /// RoundJiao and RoundYuan as one choice.
  enum class Rounding { kNone, kJiao, kYuan };
  void setRounding(Rounding rounding);
};

/// The parameters that are asked for one by one, in the order of the questions: the shop's name and
/// the receipt's texts.
const std::vector<std::string>& shopTexts();

/// What a goods sheet would do to a shop without goods. Nothing when it was ended. Throws Failure.
std::optional<GoodsPreview> previewForNewShop(const GoodsSheet& sheet, const GoOn& goOn);

/// Makes the shop's data file from the answers, never over another file, and its folder where that
/// is missing. All or nothing: the goods come into the data file while it has no name yet, and it
/// gets it when everything is in it, so that nothing half made is left, whatever ends the program;
/// for a backup the same holds (store/DataFileRestore.h). `storeSettings` stores what belongs to
/// the shop outside the data file, just before the data file gets its name; what it throws ends it
/// all. `goOn` hears the part of the goods that is done; false ends it all too, and this gives
/// false then.
/// Throws Failure with a text for the owner: Refusal for an answer, else StoreError or FileError.
[[nodiscard]] bool makeShop(
    const NewShop& shop, const DataSource& target, const Clock& clock,
    const std::function<void()>& storeSettings = [] {},
    const GoOn& goOn = [](double) { return true; });
