#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "base/DateTime.h"
#include "shop/Operators.h"
#include "store/DataSource.h"

/// Goods as the owner types them at the first start; the barcode is their item code too.
struct TypedGoods {
  std::string barcode, name, price;
};

/// What the owner answers at the first start; as it stands, with sensible answers.
struct NewShop {
  enum class From { kAnswers, kDemo, kBackup };
  From from = From::kAnswers;
  std::filesystem::path backup;  ///< for kBackup

  // The rest is for kAnswers.
  /// By the names of ClsSysParam.
  std::map<std::string, std::string, std::less<>> parameters = {
      // untranslated: printed on the receipts
      {"ReceiptText1", "欢迎光临"}, {"ReceiptText3", "谢谢惠顾，欢迎再来！"},
      {"RoundJiao", "1"},           {"BackupOnExit", "1"},
      {"CheckPayment", "1"},        {"PhonePay", "1"},
  };
  std::vector<NewOperator> operators;
  /// Files of comma-separated values by the table they go into (shop/Table.h).
  std::map<std::string, std::filesystem::path, std::less<>> files;
  std::vector<TypedGoods> goods;

  /// RoundJiao and RoundYuan as one choice.
  enum class Rounding { kNone, kJiao, kYuan };
  void setRounding(Rounding rounding);
};

/// The parameters that are asked for one by one, in the order of the questions: the shop's name and
/// the receipt's texts, and what is on or off.
const std::vector<std::string>& shopTexts();
const std::vector<std::string>& shopSwitches();

/// An empty text, or why goods cannot be so, a sentence for the owner.
[[nodiscard]] std::string refusalOf(const TypedGoods& goods);

/// What the goods of the answers come to.
struct GoodsTrial {
  std::string refusal;  ///< why they cannot be brought in; empty when they can
  std::int64_t count = 0;
  std::vector<TypedGoods> first;    ///< the first ones, prices with two decimals
  std::vector<std::string> doubts;  ///< what is likely wrong with some of them
};
/// Brings the goods into a data file that nobody keeps. Throws StoreError when there is no room.
[[nodiscard]] GoodsTrial tryGoods(const NewShop& shop, const Clock& clock);

/// Makes the shop's data file from the answers, never over another file. It has its name only when
/// everything is in it, so that nothing half made is left, whatever ends the program; for a backup
/// the same holds (store/DataFileRestore.h). `storeSettings` stores what belongs to the shop
/// outside the data file, just before the data file gets its name; what it throws ends it all.
/// Throws Failure with a text for the owner: Refusal for an answer, else StoreError.
void makeShop(
    const NewShop& shop, const DataSource& target, const Clock& clock,
    const std::function<void()>& storeSettings = [] {});
