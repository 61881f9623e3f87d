#include "shop/GoodsSheet.h"

#include "base/Failure.h"
#include "base/NumberText.h"

GoodsSheet::GoodsSheet(std::istream& text) : reader_(text) {
  ensure(reader_.next(fields_), "the demo goods have a header");
  for (std::size_t place = 0; place < fields_.size(); ++place) places_[fields_[place]] = place;
}

std::optional<DemoGoodsRow> GoodsSheet::next() {
  if (!reader_.next(fields_)) return std::nullopt;
  ensure(fields_.size() == places_.size(), "a row of the demo goods has every column");
  DemoGoodsRow row;
  row.category = field("category");
  row.itemNumber = field("item_number");
  row.itemCode = field("item_code");
  row.barcode = field("barcode");
  row.name = field("name");
  row.specification = field("specification");
  row.unit = field("unit");
  row.origin = field("origin");
  row.price = money("price");
  row.memberPrice = money("member_price");
  row.cost = money("cost");
  row.discount = Discount(parseNumber(field("discount")).value());
  if (!field("promotion_price").empty()) row.promotionPrice = money("promotion_price");
  row.promotionFrom = whole("promotion_from");
  row.promotionTo = whole("promotion_to");
  row.stock = parseNumber(field("stock")).value();
  row.caseBarcode = field("case_barcode");
  row.caseUnit = field("case_unit");
  row.caseRatio = whole("case_ratio").value_or(0);
  if (row.caseRatio > 0) row.casePrice = money("case_price");
  return row;
}

const std::string& GoodsSheet::field(const char* column) const {
  const auto place = places_.find(column);
  ensure(place != places_.end(), "the demo goods have the column");
  return fields_[place->second];
}

Currency GoodsSheet::money(const char* column) const {
  const std::optional<Currency> amount = Currency::parse(field(column));
  ensure(amount.has_value(), "prices of the demo goods are money");
  return *amount;
}

std::optional<int> GoodsSheet::whole(const char* column) const {
  return parseWhole16(field(column));
}
