#include "shop/Table.h"

#include "base/Text.h"
#include "base/Words.h"
#include "shop/Refusal.h"

namespace {

using Kind = Column::Kind;

constexpr std::nullopt_t kMustBeFilledIn = std::nullopt;
const Value kNull = std::monostate{};
const Value kZero = std::int64_t{0};
const Value kOne = std::int64_t{1};
const Value kEmptyText = std::string();

Table barcodes() {
  return {"tmda",
          Words::mark("条码和价格"),
          2,
          "select id from tmda where sptm = ? and spbm = ?",
          {{"sptm", Kind::kCode, kMustBeFilledIn, Words::mark("条码")},
           {"spbm", Kind::kCode, kMustBeFilledIn, Words::mark("商品编码")},
           {"ggxh", Kind::kText, kEmptyText, Words::mark("规格")},
           {"spmc", Kind::kName, kMustBeFilledIn, Words::mark("商品名称")},
           {"spcd", Kind::kText, kEmptyText, Words::mark("产地")},
           {"jldw", Kind::kText, kEmptyText, Words::mark("单位")},
           {"xsdj", Kind::kPrice, kZero, Words::mark("零售价")},
           {"pfj", Kind::kPrice, kZero, Words::mark("会员价，0 表示没有")},
           {"zk", Kind::kFactor, kOne, Words::mark("折扣系数（九折写 0.9），1 表示没有自己的折扣")},
           {"cxj", Kind::kPrice, kNull, Words::mark("促销价")},
           {"kssj", Kind::kDate, kNull, Words::mark("促销第一天")},
           {"jssj", Kind::kDate, kNull, Words::mark("促销最后一天")},
           {"dwbl", Kind::kRatio, kOne, Words::mark("一个销售单位合多少库存单位")},
           {"zhjj", Kind::kPrice, kZero, Words::mark("成本价")},
           {"splbmc", Kind::kText, kEmptyText, Words::mark("类别名称")}}};
}

Table goods() {
  return {
      "spda",
      Words::mark("商品资料"),
      1,
      "select id from spda where f_spbm = ?",
      {{"f_spbm", Kind::kCode, kMustBeFilledIn, Words::mark("商品编码")},
       {"f_spmc", Kind::kName, kMustBeFilledIn, Words::mark("商品名称")},
       {"f_sphh", Kind::kText, kEmptyText, Words::mark("货号")},
       {"f_sptm", Kind::kText, kEmptyText, Words::mark("条码")},
       {"f_Ggxh", Kind::kText, kEmptyText, Words::mark("规格")},
       {"f_jldw", Kind::kText, kEmptyText, Words::mark("单位")},
       {"f_xsdj", Kind::kPrice, kZero, Words::mark("零售价")},
       {"f_pfj", Kind::kPrice, kZero, Words::mark("会员价，0 表示没有")},
       {"f_zk", Kind::kFactor, kOne, Words::mark("折扣系数（九折写 0.9），1 表示没有自己的折扣")},
       {"f_zhjj", Kind::kPrice, kZero, Words::mark("成本价")},
       {"f_spcd", Kind::kText, kEmptyText, Words::mark("产地")},
       {"f_splbmc", Kind::kText, kEmptyText, Words::mark("类别名称")}}};
}

Table categories() {
  return {"SP_LB",
          Words::mark("商品类别"),
          1,
          "select SPLB_ID as id from SP_LB where SPLB_ID = ?",
          {{"SPLB_ID", Kind::kKey, kMustBeFilledIn, Words::mark("类别号，决定先后")},
           {"SPLBMC", Kind::kName, kMustBeFilledIn, Words::mark("类别名称")}}};
}

Table members(const DateTime& now) {
  return {"member",
          Words::mark("会员和储值卡"),
          1,
          "select id from member where bh = ?",
          {{"bh", Kind::kCode, kMustBeFilledIn, Words::mark("会员卡号")},
           {"name", Kind::kName, kMustBeFilledIn, Words::mark("姓名")},
           {"hyzklb", Kind::kText, kEmptyText, Words::mark("卡的类别")},
           {"card", Kind::kMoney, kZero, Words::mark("储值卡余额"), true},
           {"password", Kind::kText, kEmptyText, Words::mark("储值卡密码"), true},
           {"sex", Kind::kText, kEmptyText, Words::mark("性别")},
           {"age", Kind::kCount, kZero, Words::mark("年龄")},
           {"phone", Kind::kText, kEmptyText, Words::mark("电话")},
           {"address", Kind::kText, kEmptyText, Words::mark("地址")},
           {"other", Kind::kText, kEmptyText, Words::mark("备注")},
           {"enabled", Kind::kFlag, kOne, Words::mark("1 可用，0 停用")},
           {"total_spent", Kind::kMoney, kZero, Words::mark("累计消费"), true},
           {"points", Kind::kCount, kZero, Words::mark("积分"), true},
           {"discount", Kind::kFactor, kNull, Words::mark("会员折扣系数")},
           {"birthday", Kind::kDate, kNull, Words::mark("生日")},
           {"join_date", Kind::kDate, toValue(now), Words::mark("加入时间")}}};
}

Table stock() {
  return {"stock",
          Words::mark("库存"),
          1,
          "select id from spda where f_spbm = ?",
          {{"spbm", Kind::kCode, kMustBeFilledIn, Words::mark("商品编码")},
           {"quantity", Kind::kQuantity, kMustBeFilledIn, Words::mark("库存数量")}}};
}

std::vector<Table> allTables(const DateTime& now) {
  return {categories(), goods(), barcodes(), members(now), stock()};
}

}  // namespace

std::optional<std::size_t> Table::indexOf(std::string_view column) const {
  for (std::size_t index = 0; index < columns.size(); ++index) {
    if (equalIgnoringCase(columns[index].name, column)) return index;
  }
  return std::nullopt;
}

Table tableNamed(std::string_view name, const DateTime& now) {
  for (Table& table : allTables(now)) {
    if (equalIgnoringCase(table.name, name)) return std::move(table);
  }
  throw Refusal(Words::tr("没有可以导入导出的表：%1", name));
}

const std::vector<std::string>& tableNames() {
  static const std::vector<std::string> names = {"SP_LB", "spda", "tmda", "member", "stock"};
  return names;
}

std::string tablesExplained() {
  std::string text;
  for (const Table& table : allTables({})) {
    text += std::string(table.name) + "  " + Words::tr(table.meaning) + "\n";
    for (std::size_t index = 0; index < table.columns.size(); ++index) {
      const Column& column = table.columns[index];
      const std::size_t width = std::string_view(column.name).size();
      text += "  " + std::string(column.name) + std::string(13 - width, ' ') +
              Words::tr(column.meaning) + (index < table.keyColumns ? Words::tr("（主键）") : "") +
              "\n";
    }
  }
  return text;
}
