#include "tools/Table.h"

#include "base/Text.h"
#include "tools/Refusal.h"

namespace {

using Kind = Column::Kind;

constexpr std::nullopt_t kMustBeFilledIn = std::nullopt;
const Value kNull = std::monostate{};
const Value kZero = std::int64_t{0};
const Value kOne = std::int64_t{1};
const Value kEmptyText = std::string();

Table barcodes() {
  return {"tmda",
          2,
          {{"sptm", Kind::kCode, kMustBeFilledIn},
           {"spbm", Kind::kCode, kMustBeFilledIn},
           {"ggxh", Kind::kText, kEmptyText},
           {"spmc", Kind::kName, kMustBeFilledIn},
           {"spcd", Kind::kText, kEmptyText},
           {"jldw", Kind::kText, kEmptyText},
           {"xsdj", Kind::kPrice, kZero},
           {"pfj", Kind::kPrice, kZero},
           {"zk", Kind::kFactor, kOne},
           {"cxj", Kind::kPrice, kNull},
           {"kssj", Kind::kDate, kNull},
           {"jssj", Kind::kDate, kNull},
           {"dwbl", Kind::kRatio, kOne},
           {"zhjj", Kind::kPrice, kZero},
           {"splbmc", Kind::kText, kEmptyText}}};
}

Table goods() {
  return {"spda",
          1,
          {{"f_spbm", Kind::kCode, kMustBeFilledIn},
           {"f_spmc", Kind::kName, kMustBeFilledIn},
           {"f_sphh", Kind::kText, kEmptyText},
           {"f_sptm", Kind::kText, kEmptyText},
           {"f_Ggxh", Kind::kText, kEmptyText},
           {"f_jldw", Kind::kText, kEmptyText},
           {"f_xsdj", Kind::kPrice, kZero},
           {"f_pfj", Kind::kPrice, kZero},
           {"f_zk", Kind::kFactor, kOne},
           {"f_zhjj", Kind::kPrice, kZero},
           {"f_spcd", Kind::kText, kEmptyText},
           {"f_splbmc", Kind::kText, kEmptyText}}};
}

Table categories() {
  return {"SP_LB",
          1,
          {{"SPLB_ID", Kind::kKey, kMustBeFilledIn}, {"SPLBMC", Kind::kName, kMustBeFilledIn}}};
}

Table members(const DateTime& now) {
  return {"member",
          1,
          {{"bh", Kind::kCode, kMustBeFilledIn},
           {"name", Kind::kName, kMustBeFilledIn},
           {"hyzklb", Kind::kText, kEmptyText},
           {"card", Kind::kMoney, kZero},
           {"password", Kind::kText, kEmptyText},
           {"sex", Kind::kText, kEmptyText},
           {"age", Kind::kCount, kZero},
           {"phone", Kind::kText, kEmptyText},
           {"address", Kind::kText, kEmptyText},
           {"other", Kind::kText, kEmptyText},
           {"enabled", Kind::kFlag, kOne},
           {"total_spent", Kind::kMoney, kZero},
           {"points", Kind::kCount, kZero},
           {"discount", Kind::kFactor, kNull},
           {"birthday", Kind::kDate, kNull},
           {"join_date", Kind::kDate, toValue(now)}}};
}

Table stock() {
  return {"stock",
          1,
          {{"spbm", Kind::kCode, kMustBeFilledIn}, {"quantity", Kind::kQuantity, kMustBeFilledIn}}};
}

}  // namespace

std::optional<std::size_t> Table::indexOf(std::string_view column) const {
  for (std::size_t index = 0; index < columns.size(); ++index) {
    if (equalIgnoringCase(columns[index].name, column)) return index;
  }
  return std::nullopt;
}

Table tableNamed(std::string_view name, const DateTime& now) {
  for (Table& table :
       std::vector<Table>{barcodes(), goods(), categories(), members(now), stock()}) {
    if (equalIgnoringCase(table.name, name)) return std::move(table);
  }
  throw Refusal("没有可以导入导出的表：" + std::string(name));
}

const std::vector<std::string>& tableNames() {
  static const std::vector<std::string> names = {"tmda", "spda", "SP_LB", "member", "stock"};
  return names;
}
