#include "shop/GoodsRow.h"

#include "base/NumberText.h"
#include "base/Text.h"
#include "base/Words.h"
#include "shop/GoodsMapping.h"
#include "shop/ShownField.h"

namespace {

std::string countText(std::size_t fields, std::size_t headings) {
  return Words::tr("有 %1 列，标题行有 %2 列", fields, headings);
}

}  // namespace

std::string textOf(const Value& value) {
  if (const auto* text = std::get_if<std::string>(&value)) return *text;
  if (const auto* whole = std::get_if<std::int64_t>(&value)) return std::to_string(*whole);
  if (const auto* number = std::get_if<double>(&value)) return generalNumber(*number);
  return {};
}

std::string GoodsRow::read(const std::vector<std::string>& fields, const GoodsMapping& mapping) {
  values_.fill(std::nullopt);
  if (fields.size() != mapping.columns.size()) {
    return countText(fields.size(), mapping.columns.size());
  }
  for (std::size_t place = 0; place < fields.size(); ++place) {
    const std::optional<GoodsField> field = mapping.columns[place].field;
    if (!field) continue;
    const std::string text = trimmed(fields[place]);
    if (text.empty() && *field == GoodsField::kStock) continue;
    std::optional<Value>& value = values_[static_cast<std::size_t>(*field)];
    value = columnOf(*field).valueOf(text);
    if (!value) return expectationMissed(columnOf(*field), text);
  }
  return caseFault();
}

std::string GoodsRow::text(GoodsField field) const {
  return gives(field) ? textOf(*value(field)) : std::string();
}

std::string GoodsRow::caseFault() const {
  if (!hasCase()) return {};
  if (text(GoodsField::kCaseRatio).empty()) return Words::tr("有箱条码，却没有“每箱”的数量");
  if (text(GoodsField::kCasePrice).empty()) return Words::tr("有箱条码，却没有“箱价”");
  if (text(GoodsField::kCaseBarcode) == text(GoodsField::kBarcode))
    return Words::tr("箱条码和条码相同");
  return {};
}
