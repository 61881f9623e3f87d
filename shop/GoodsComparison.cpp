#include "shop/GoodsComparison.h"

#include <algorithm>
#include <functional>
#include <utility>

#include "base/Currency.h"
#include "base/NumberText.h"
#include "base/Text.h"
#include "base/Words.h"
#include "shop/RowDoubts.h"
#include "store/Connection.h"

namespace {

constexpr std::size_t kMostDoubts = 20;

std::size_t indexOf(GoodsField field) {
  return static_cast<std::size_t>(field);
}

/// The field that a column of the goods tables holds; nothing for the unit ratio and the quantity.
std::optional<GoodsField> fieldOf(const Column& column) {
  static constexpr std::pair<std::string_view, GoodsField> kColumns[] = {
      {"spbm", GoodsField::kItemCode},      {"sptm", GoodsField::kBarcode},
      {"sphh", GoodsField::kItemNumber},    {"spmc", GoodsField::kName},
      {"ggxh", GoodsField::kSpecification}, {"jldw", GoodsField::kUnit},
      {"spcd", GoodsField::kOrigin},        {"xsdj", GoodsField::kPrice},
      {"pfj", GoodsField::kMemberPrice},    {"zk", GoodsField::kDiscount},
      {"cxj", GoodsField::kPromotionPrice}, {"kssj", GoodsField::kPromotionFrom},
      {"jssj", GoodsField::kPromotionTo},   {"zhjj", GoodsField::kCost},
      {"splbmc", GoodsField::kCategory}};
  std::string_view name = column.name;
  if (name.starts_with("f_")) name.remove_prefix(2);
  for (const auto& [shortName, field] : kColumns) {
    if (equalIgnoringCase(shortName, name)) return field;
  }
  return std::nullopt;
}

std::string priceText(const Value& price) {
  const std::optional<Currency> money = Currency::parse(textOf(price));
  return money ? twoDecimals(*money) : textOf(price);
}

template <class List, class Entry>
void list(List& entries, std::int64_t& count, std::size_t most, Entry entry) {
  ++count;
  if (entries.size() < most) entries.push_back(std::move(entry));
}

}  // namespace

struct GoodsComparison::Outcome {
  GoodsToWrite writes;
  std::string refusal;
  bool isNew = false;
  std::string oldPrice;
  std::vector<std::string> otherFields;

  void changes(const std::string& heading) {
    if (std::ranges::find(otherFields, heading) == otherFields.end())
      otherFields.push_back(heading);
  }
  bool writesNothing() const {
    return writes.master.empty() && writes.barcodes.empty() && writes.stock.empty();
  }
};

GoodsComparison::GoodsComparison(Connection& connection)
    : connection_(connection), master_("spda"), barcodes_("tmda"), stock_("stock") {}

GoodsComparison::KnownTable::KnownTable(const char* table) : Table(tableNamed(table, {})) {
  query.append("select * from ").append(name).append(" where ");
  for (std::size_t index = 0; index < columns.size(); ++index) {
    const bool isKey = index < keyColumns;
    if (isKey) query.append(index == 0 ? "" : " and ").append(columns[index].name).append(" = ?");
    fields.push_back(fieldOf(columns[index]));
  }
}

std::optional<GoodsToWrite> GoodsComparison::compare(const GoodsRow& row, std::int64_t line,
                                                     GoodsPreview& preview) {
  Outcome outcome;
  article_.fill(std::nullopt);
  outcome.refusal = resolve(row);
  if (outcome.refusal.empty()) compareTables(row, outcome);
  if (!outcome.refusal.empty()) {
    preview.refuse(line, outcome.refusal);
    return std::nullopt;
  }
  const std::vector<bool> all(barcodes_.columns.size(), true);
  for (const TableRow& barcode : outcome.writes.barcodes) {
    const std::string doubts = doubtsOf(barcodes_, barcode, all);
    if (doubts.empty()) continue;
    list(preview.doubts, preview.doubtCount, kMostDoubts, GoodsPreview::Complaint{line, doubts});
  }
  if (outcome.writesNothing()) {
    ++preview.unchangedCount;
    return std::nullopt;
  }
  count(outcome, line, preview);
  outcome.writes.category = known(GoodsField::kCategory);
  return std::move(outcome.writes);
}

void GoodsComparison::compareTables(const GoodsRow& row, Outcome& outcome) {
  std::optional<TableRow> before;
  if (!barcode_.empty()) before = stored(barcodes_, {barcode_, itemCode_});
  const bool isCase = before && textOf((*before)[*barcodes_.indexOf("dwbl")]) != "1";
  const bool isWritten = !isCase && isFirst(asciiLower(itemCode_));
  compareMaster(row, isWritten, outcome);
  if (!barcode_.empty()) compareBarcode(row, before, outcome);
  if (row.hasCase()) compareCase(row, outcome);
  if (isWritten && row.gives(GoodsField::kStock)) compareStock(row, outcome);
}

void GoodsComparison::count(const Outcome& outcome, std::int64_t line,
                            GoodsPreview& preview) const {
  const GoodsPreview::Article article{
      line,
      itemCode_,
      barcode_,
      known(GoodsField::kName),
      outcome.oldPrice,
      priceText(article_[indexOf(GoodsField::kPrice)].value_or(std::monostate{})),
      outcome.isNew ? std::vector<std::string>() : outcome.otherFields};
  if (outcome.isNew) {
    list(preview.added, preview.addedCount, GoodsPreview::kMostListed, article);
  } else {
    list(preview.changed, preview.changedCount, GoodsPreview::kMostListed, article);
  }
}

std::string GoodsComparison::known(GoodsField field) const {
  const std::optional<Value>& value = article_[indexOf(field)];
  return value ? textOf(*value) : std::string();
}

// What the master leaves empty is not known: another table may want something there.
std::optional<Value> GoodsComparison::knownValue(GoodsField field) const {
  const std::optional<Value>& value = article_[indexOf(field)];
  return value && !std::holds_alternative<std::monostate>(*value) ? value : std::nullopt;
}

std::string GoodsComparison::resolve(const GoodsRow& row) {
  barcode_ = row.text(GoodsField::kBarcode);
  itemCode_ = row.text(GoodsField::kItemCode);
  if (itemCode_.empty()) {
    if (barcode_.empty()) return Words::tr("商品编码和条码都空着");
    if (std::string refusal = resolveItem(); !refusal.empty()) return refusal;
  }
  if (!row.gives(GoodsField::kBarcode)) {
    Rows own = connection_.query(
        "select sptm from spda join tmda on sptm = f_sptm and spbm = f_spbm where f_spbm = ?",
        itemCode_);
    if (own.next()) barcode_ = own.text("sptm");
  }
  if (!isFirst(barcodeKey(barcode_))) return Words::tr("与前面的一行是同一种商品、同一个条码");
  return {};
}

std::string GoodsComparison::resolveItem() {
  Rows items = connection_.query("select spbm from tmda where sptm = ?", barcode_);
  itemCode_ = items.next() ? items.text("spbm") : barcode_;
  if (items.next()) return Words::tr("条码 %1 属于几种商品，要写明商品编码", barcode_);
  return {};
}

std::string GoodsComparison::barcodeKey(const std::string& barcode) const {
  return asciiLower(itemCode_ + '\n' + barcode);
}

// Of a million rows, two have the same hash once in some million sheets.
bool GoodsComparison::isFirst(const std::string& key) {
  return seen_.insert(std::hash<std::string>()(key)).second;
}

std::optional<GoodsComparison::TableRow> GoodsComparison::stored(const KnownTable& table,
                                                                 const TableRow& key) const {
  Rows found = connection_.queryBound(table.query.c_str(), key);
  if (!found.next()) return std::nullopt;
  TableRow row;
  for (const Column& column : table.columns) {
    row.push_back(found.isNull(column.name) ? Value() : toValue(found.text(column.name)));
  }
  return row;
}

// What the sheet gives, or else what the shop has, or else what the article is known to have.
void GoodsComparison::merge(const KnownTable& table, const Fields& given,
                            const std::optional<TableRow>& before, std::vector<TableRow>& writes,
                            Outcome& outcome) {
  TableRow after;
  bool isChanged = !before;
  for (std::size_t index = 0; index < table.columns.size(); ++index) {
    const Column& column = table.columns[index];
    const std::optional<GoodsField> field = table.fields[index];
    std::optional<Value> value = field ? given[indexOf(*field)] : std::nullopt;
    if (!value && before) value = (*before)[index];
    if (!value && field) value = knownValue(*field);
    if (!value) value = column.fallback;
    if (!value) {
      outcome.refusal = Words::tr("是新的，但表里没有“%1”这一列", headingOf(*field));
      return;
    }
    if (before && index >= table.keyColumns && textOf(*value) != textOf((*before)[index])) {
      isChanged = true;
      if (field == GoodsField::kPrice) {
        outcome.oldPrice = priceText((*before)[index]);
      } else {
        outcome.changes(field ? headingOf(*field) : headingOf(GoodsField::kCaseRatio));
      }
    }
    after.push_back(*std::move(value));
  }
  if (isChanged) writes.push_back(std::move(after));
}

void GoodsComparison::compareMaster(const GoodsRow& row, bool isWritten, Outcome& outcome) {
  const std::optional<TableRow> before = stored(master_, {itemCode_});
  Fields given = row.values();
  given[indexOf(GoodsField::kItemCode)] = itemCode_;
  given[indexOf(GoodsField::kBarcode)].reset();
  const std::size_t own = *master_.indexOf("f_sptm");
  if (!before || textOf((*before)[own]).empty()) given[indexOf(GoodsField::kBarcode)] = barcode_;
  if (isWritten) {
    outcome.isNew = !before;
    merge(master_, given, before, outcome.writes.master, outcome);
  }
  const TableRow* has = before ? &*before : nullptr;
  if (!outcome.writes.master.empty()) has = &outcome.writes.master.front();
  if (has == nullptr) article_ = given;  // the article is new, by an earlier row
  if (has == nullptr) return;
  for (std::size_t index = 0; index < master_.columns.size(); ++index) {
    article_[indexOf(*master_.fields[index])] = (*has)[index];
  }
}

void GoodsComparison::compareBarcode(const GoodsRow& row, const std::optional<TableRow>& before,
                                     Outcome& outcome) {
  Fields given = row.values();
  given[indexOf(GoodsField::kItemCode)] = itemCode_;
  given[indexOf(GoodsField::kBarcode)] = barcode_;
  if (!before) outcome.changes(headingOf(GoodsField::kBarcode));
  merge(barcodes_, given, before, outcome.writes.barcodes, outcome);
  if (!outcome.refusal.empty() || !row.gives(GoodsField::kPrice)) return;
  article_[indexOf(GoodsField::kPrice)] = row.value(GoodsField::kPrice);
}

// The case is sold under its own barcode and price, and takes that many units out of the same
// stock. What the shop calls it stays.
void GoodsComparison::compareCase(const GoodsRow& row, Outcome& outcome) {
  const std::string barcode = row.text(GoodsField::kCaseBarcode);
  if (!outcome.refusal.empty() || !isFirst(barcodeKey(barcode))) return;
  const std::optional<TableRow> before = stored(barcodes_, {barcode, itemCode_});
  const Value ratio = *row.value(GoodsField::kCaseRatio);
  TableRow after = before.value_or(TableRow());
  if (!before) {
    for (const Column& column : barcodes_.columns)
      after.push_back(column.fallback.value_or(std::monostate{}));
  }
  const auto set = [&](const char* column, const Value& value, GoodsField field) {
    Value& place = after[*barcodes_.indexOf(column)];
    if (before && textOf(place) != textOf(value)) outcome.changes(headingOf(field));
    place = value;
  };
  const auto article = [this](GoodsField field) {
    return article_[indexOf(field)].value_or(Value(std::string()));
  };
  set("sptm", barcode, GoodsField::kCaseBarcode);
  set("spbm", itemCode_, GoodsField::kItemCode);
  set("spcd", article(GoodsField::kOrigin), GoodsField::kOrigin);
  set("splbmc", article(GoodsField::kCategory), GoodsField::kCategory);
  set("xsdj", *row.value(GoodsField::kCasePrice), GoodsField::kCasePrice);
  set("dwbl", ratio, GoodsField::kCaseRatio);
  if (row.gives(GoodsField::kCaseUnit))
    set("jldw", *row.value(GoodsField::kCaseUnit), GoodsField::kCaseUnit);
  if (const auto cost = Currency::parse(known(GoodsField::kCost)); cost) {
    const double count = parseNumber(textOf(ratio)).value();
    set("zhjj", toValue(lineAmount(*cost, count, Discount())), GoodsField::kCost);
  }
  if (!before) {
    set("spmc", known(GoodsField::kName) + " 整箱", GoodsField::kName);  // untranslated: stored
    set("ggxh", "1x" + textOf(ratio), GoodsField::kSpecification);
    outcome.changes(headingOf(GoodsField::kCaseBarcode));
  }
  const auto text = [](const Value& value) { return textOf(value); };
  if (!before || !std::ranges::equal(after, *before, {}, text, text)) {
    outcome.writes.barcodes.push_back(std::move(after));
  }
}

void GoodsComparison::compareStock(const GoodsRow& row, Outcome& outcome) {
  const std::optional<TableRow> before = stored(stock_, {itemCode_});
  const Value& quantity = *row.value(GoodsField::kStock);
  if (before && textOf(before->back()) == textOf(quantity)) return;
  outcome.changes(headingOf(GoodsField::kStock));
  outcome.writes.stock.push_back({itemCode_, quantity});
}
