#include "shop/GoodsField.h"

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

#include "base/Text.h"

namespace {

using Kind = Column::Kind;

/// What an empty field stands for.
enum class Empty { kMustBeFilledIn, kNothing, kZero, kOne, kNoText };

struct Definition {
  const char* heading;
  Kind kind;
  Empty empty;
  /// What others call it, a blank between two, without brackets, in half-width lower-case letters.
  std::string_view synonyms;
};

constexpr std::array<Definition, kGoodsFields> kDefinitions = {{
    {"商品编码", Kind::kCode, Empty::kNoText,
     "编码 商品编号 商品代码 商品号 编号 品号 内部编码 "
     "店内码 商品id sku skuid itemcode "
     "code"},
    {"条码", Kind::kCode, Empty::kNoText,
     "条形码 国际条码 商品条码 商品条形码 国际条形码 主条码 "
     "69码 ean ean13 upc barcode"},
    {"货号", Kind::kText, Empty::kNoText,
     "商品货号 款号 自编码 助记码 简码 itemno "
     "itemnumber"},
    {"名称", Kind::kName, Empty::kMustBeFilledIn,
     "品名 商品名称 商品名 货名 货品名称 商品全称 全称 "
     "产品名称 name"},
    {"规格", Kind::kText, Empty::kNoText,
     "规格型号 商品规格 型号 包装规格 spec "
     "specification"},
    {"单位", Kind::kText, Empty::kNoText, "计量单位 销售单位 基本单位 库存单位 主单位 unit"},
    {"产地", Kind::kText, Empty::kNoText, "商品产地 原产地 origin"},
    {"零售价", Kind::kPrice, Empty::kZero,
     "售价 单价 销售价 销售单价 零售单价 零售价格 商品售价 "
     "标价 现价 价格 price"},
    {"会员价", Kind::kPrice, Empty::kZero,
     "会员单价 会员售价 会员价格 vip价 "
     "memberprice"},
    {"折扣", Kind::kFactor, Empty::kOne, "折扣率 商品折扣 折扣系数 discount"},
    {"特价", Kind::kPrice, Empty::kNothing,
     "促销价 活动价 优惠价 促销价格 特价价格 "
     "promotionprice"},
    {"特价起", Kind::kDate, Empty::kNothing,
     "特价开始 促销开始 开始日期 促销起 促销开始日期 "
     "特价开始日期 活动开始日期 起始日期"},
    {"特价止", Kind::kDate, Empty::kNothing,
     "特价结束 促销结束 结束日期 促销止 促销结束日期 "
     "特价结束日期 活动结束日期 截止日期"},
    {"进价", Kind::kPrice, Empty::kZero,
     "进货价 成本价 成本 进货单价 采购价 参考进价 最新进价 "
     "平均进价 进货价格 cost"},
    {"库存", Kind::kQuantity, Empty::kMustBeFilledIn,
     "库存数量 库存量 现有库存 当前库存 数量 结存 结存数量 "
     "stock quantity"},
    {"类别", Kind::kText, Empty::kNoText,
     "分类 商品类别 商品分类 类别名称 分类名称 品类 大类 "
     "category"},
    {"箱条码", Kind::kCode, Empty::kNoText,
     "箱码 整箱条码 外箱条码 箱条形码 件条码 "
     "casebarcode"},
    {"箱单位", Kind::kText, Empty::kNoText, "整箱单位 件单位 大单位 caseunit"},
    {"每箱", Kind::kRatio, Empty::kNothing,
     "箱规 装箱数 装箱量 每箱数量 箱装数 件装数 箱含量 "
     "每件数量"},
    {"箱价", Kind::kPrice, Empty::kNothing, "整箱价 箱售价 整箱售价 件价 caseprice"},
}};

std::optional<Value> valueOf(Empty empty) {
  switch (empty) {
    case Empty::kMustBeFilledIn:
      return std::nullopt;
    case Empty::kNothing:
      return std::optional<Value>(std::in_place);
    case Empty::kZero:
      return toValue(0);
    case Empty::kOne:
      return toValue(1);
    case Empty::kNoText:
      return toValue("");
  }
  return std::nullopt;
}

std::vector<Column> allColumns() {
  std::vector<Column> columns;
  columns.reserve(kDefinitions.size());
  for (const Definition& definition : kDefinitions) {
    columns.push_back({definition.heading, definition.kind, valueOf(definition.empty), ""});
  }
  return columns;
}

bool isAmong(std::string_view word, std::string_view words) {
  if (word.empty()) return false;
  while (!words.empty()) {
    const std::size_t end = std::min(words.find(' '), words.size());
    if (words.substr(0, end) == word) return true;
    words.remove_prefix(std::min(end + 1, words.size()));
  }
  return false;
}

/// A heading as the synonyms are written: "零售价（元）" is 零售价.
std::string bareHeading(std::string_view heading) {
  std::string text = asciiLower(halfWidth(heading));
  text.resize(std::min(text.find('('), text.size()));
  for (const char* sign : {" ", "\t", "\n", "\r", "*", ":", "_", "-"})
    text = replaced(text, sign, "");
  return text;
}

}  // namespace

const Column& columnOf(GoodsField field) {
  static const std::vector<Column> columns = allColumns();
  return columns.at(static_cast<std::size_t>(field));
}

const char* headingOf(GoodsField field) {
  return columnOf(field).name;
}

std::optional<GoodsField> fieldOfHeading(std::string_view heading) {
  for (std::size_t index = 0; index < kGoodsFields; ++index) {
    const auto field = static_cast<GoodsField>(index);
    if (trimmed(heading) == headingOf(field)) return field;
  }
  return std::nullopt;
}

std::optional<GoodsField> guessedField(std::string_view heading) {
  const std::string bare = bareHeading(heading);
  for (std::size_t index = 0; index < kGoodsFields; ++index) {
    const auto field = static_cast<GoodsField>(index);
    if (bare == headingOf(field) || isAmong(bare, kDefinitions[index].synonyms)) return field;
  }
  return std::nullopt;
}
