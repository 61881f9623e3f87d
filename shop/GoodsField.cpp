#include "shop/GoodsField.h"

#include <algorithm>
#include <vector>

#include "base/Text.h"

namespace {

using Kind = Column::Kind;

struct Definition {
  Column column;
  /// What others call it, without blanks and brackets, in half-width lower-case letters.
  std::vector<std::string_view> synonyms;
};

const Value kNull = std::monostate{};
const Value kZero = std::int64_t{0};
const Value kOne = std::int64_t{1};
const Value kEmptyText = std::string();

const std::array<Definition, kGoodsFields>& definitions() {
  static const std::array<Definition, kGoodsFields> all = {{
      {{"商品编码", Kind::kCode, kEmptyText, ""},
       {"编码", "商品编号", "商品代码", "商品号", "编号", "品号", "内部编码", "店内码", "商品id",
        "sku", "skuid", "itemcode", "code"}},
      {{"条码", Kind::kCode, kEmptyText, ""},
       {"条形码", "国际条码", "商品条码", "商品条形码", "国际条形码", "主条码", "69码", "ean",
        "ean13", "upc", "barcode"}},
      {{"货号", Kind::kText, kEmptyText, ""},
       {"商品货号", "款号", "自编码", "助记码", "简码", "itemno", "itemnumber"}},
      {{"名称", Kind::kName, std::nullopt, ""},
       {"品名", "商品名称", "商品名", "货名", "货品名称", "商品全称", "全称", "产品名称", "name"}},
      {{"规格", Kind::kText, kEmptyText, ""},
       {"规格型号", "商品规格", "型号", "包装规格", "spec", "specification"}},
      {{"单位", Kind::kText, kEmptyText, ""},
       {"计量单位", "销售单位", "基本单位", "库存单位", "主单位", "unit"}},
      {{"产地", Kind::kText, kEmptyText, ""}, {"商品产地", "原产地", "origin"}},
      {{"零售价", Kind::kPrice, kZero, ""},
       {"售价", "单价", "销售价", "销售单价", "零售单价", "零售价格", "商品售价", "标价", "现价",
        "价格", "price"}},
      {{"会员价", Kind::kPrice, kZero, ""},
       {"会员单价", "会员售价", "会员价格", "vip价", "memberprice"}},
      {{"折扣", Kind::kFactor, kOne, ""}, {"折扣率", "商品折扣", "折扣系数", "discount"}},
      {{"特价", Kind::kPrice, kNull, ""},
       {"促销价", "活动价", "优惠价", "促销价格", "特价价格", "promotionprice"}},
      {{"特价起", Kind::kDate, kNull, ""},
       {"特价开始", "促销开始", "开始日期", "促销起", "促销开始日期", "特价开始日期",
        "活动开始日期", "起始日期"}},
      {{"特价止", Kind::kDate, kNull, ""},
       {"特价结束", "促销结束", "结束日期", "促销止", "促销结束日期", "特价结束日期",
        "活动结束日期", "截止日期"}},
      {{"进价", Kind::kPrice, kZero, ""},
       {"进货价", "成本价", "成本", "进货单价", "采购价", "参考进价", "最新进价", "平均进价",
        "进货价格", "cost"}},
      {{"库存", Kind::kQuantity, std::nullopt, ""},
       {"库存数量", "库存量", "现有库存", "当前库存", "数量", "结存", "结存数量", "stock",
        "quantity"}},
      {{"类别", Kind::kText, kEmptyText, ""},
       {"分类", "商品类别", "商品分类", "类别名称", "分类名称", "品类", "大类", "category"}},
      {{"箱条码", Kind::kCode, kEmptyText, ""},
       {"箱码", "整箱条码", "外箱条码", "箱条形码", "件条码", "casebarcode"}},
      {{"箱单位", Kind::kText, kEmptyText, ""}, {"整箱单位", "件单位", "大单位", "caseunit"}},
      {{"每箱", Kind::kRatio, kNull, ""},
       {"箱规", "装箱数", "装箱量", "每箱数量", "箱装数", "件装数", "箱含量", "每件数量"}},
      {{"箱价", Kind::kPrice, kNull, ""}, {"整箱价", "箱售价", "整箱售价", "件价", "caseprice"}},
  }};
  return all;
}

const Definition& definition(GoodsField field) {
  return definitions().at(static_cast<std::size_t>(field));
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
  return definition(field).column;
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
    const auto& synonyms = definition(field).synonyms;
    const bool isMeant = std::ranges::find(synonyms, bare) != synonyms.end();
    if (bare == headingOf(field) || isMeant) return field;
  }
  return std::nullopt;
}
