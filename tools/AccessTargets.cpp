#include "tools/AccessTargets.h"

#include "base/Text.h"

namespace {

using enum TargetColumn::Kind;

constexpr std::nullopt_t kFilled = std::nullopt;
const Value kNull = std::monostate{};
const Value kZero = std::int64_t{0};
const Value kOne = std::int64_t{1};
const Value kNothing = std::string();

TargetTable categories() {
  return {"SP_LB", {{"SPLB_ID", kWhole, kFilled}, {"SPLBMC", kText, kFilled}}};
}

TargetTable goods() {
  return {"spda",
          {{"f_spbm", kText, kFilled},
           {"f_spmc", kText, kNull},
           {"f_sphh", kText, kNull},
           {"f_sptm", kText, kNull},
           {"f_Ggxh", kText, kNull},
           {"f_jldw", kText, kNull},
           {"f_xsdj", kMoney, kNull},
           {"f_pfj", kMoney, kNull},
           {"f_zk", kNumber, kNull},
           {"f_zhjj", kMoney, kNull},
           {"f_spcd", kText, kNull},
           {"f_splbmc", kText, kNull}}};
}

TargetTable barcodes() {
  return {"tmda",
          {{"sptm", kText, kFilled},
           {"spbm", kText, kFilled},
           {"ggxh", kText, kNull},
           {"spmc", kText, kNull},
           {"spcd", kText, kNull},
           {"jldw", kText, kNull},
           {"xsdj", kMoney, kNull},
           {"pfj", kMoney, kNull},
           {"zk", kNumber, kNull},
           {"cxj", kMoney, kNull},
           {"kssj", kDate, kNull},
           {"jssj", kDate, kNull},
           {"dwbl", kWhole, kNull},
           {"zhjj", kMoney, kNull},
           {"splbmc", kText, kNull}}};
}

TargetTable stock() {
  return {"stock", {{"spbm", kText, kFilled}, {"quantity", kNumber, kFilled}}};
}

TargetTable members(const DateTime& now) {
  return {"member",
          {{"id", kWhole, kNull},
           {"bh", kText, kFilled},
           {"name", kText, kNothing},
           {"hyzklb", kText, kNull},
           {"card", kMoney, kZero},
           {"password", kText, kNothing},
           {"sex", kText, kNothing},
           {"age", kWhole, kZero},
           {"phone", kText, kNothing},
           {"address", kText, kNothing},
           {"other", kText, kNothing},
           {"enabled", kFlag, kOne},
           {"total_spent", kMoney, kZero},
           {"points", kWhole, kZero},
           {"discount", kNumber, kNull},
           {"birthday", kDate, kNull},
           {"join_date", kDate, toValue(now)}},
          true};
}

TargetTable bills() {
  return {"sell",
          {{"id", kWhole, kFilled},
           {"sell_time", kDate, kFilled},
           {"operator_id", kWhole, kFilled},
           {"state", kFlag, kOne},
           {"quantity", kNumber, kZero},
           {"goods_amount", kMoney, kZero},
           {"amount", kMoney, kZero},
           {"cash", kMoney, kZero},
           {"favorable", kMoney, kZero},
           {"bank_card", kMoney, kZero},
           {"card_pay", kMoney, kZero},
           {"card_no", kText, kNothing},
           {"salesman", kWhole, kZero},
           {"member_id", kWhole, kZero},
           {"phone_pay", kMoney, kZero},
           {"phone_slip", kText, kNull}}};
}

TargetTable lines() {
  return {"sellProducts",
          {{"id", kWhole, kFilled},
           {"sellId", kWhole, kFilled},
           {"insert_Date", kDate, kFilled},
           {"bm", kText, kFilled},
           {"name", kText, kNull},
           {"unit", kText, kNull},
           {"amount", kNumber, kFilled},
           {"price", kMoney, kFilled},
           {"discount", kNumber, kOne},
           {"money", kMoney, kFilled},
           {"in_price", kMoney, kNull},
           {"splbmc", kText, kNull},
           {"entry_code", kText, kNothing},
           {"ratio", kWhole, kOne},
           {"origin", kText, kNothing}}};
}

TargetTable topUps() {
  return {"cardStored",
          {{"cardbh", kText, kFilled},
           {"addmoney", kMoney, kFilled},
           {"inMoney", kMoney, kFilled},
           {"commerce", kMoney, kFilled},
           {"bz", kText, kNull}}};
}

}  // namespace

std::optional<std::size_t> TargetTable::indexOf(std::string_view column) const {
  for (std::size_t index = 0; index < columns.size(); ++index) {
    if (equalIgnoringCase(columns[index].name, column)) return index;
  }
  return std::nullopt;
}

std::vector<TargetTable> targetTables(const DateTime& now) {
  return {categories(), goods(), barcodes(), stock(), members(now), bills(), lines(), topUps()};
}
