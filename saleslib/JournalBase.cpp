#include "saleslib/JournalBase.h"

#include <nlohmann/json.hpp>
#include <utility>

#include "base/Failure.h"
#include "base/NumberText.h"
#include "base/Text.h"
#include "saleslib/Journal.h"
#include "saleslib/JournalEntry.h"
#include "saleslib/JournalRecords.h"
#include "store/Connection.h"

namespace {

using Json = nlohmann::json;

// What came down from a shop's server of the others' stock is not this till's to tell.
constexpr const char* kOwnStock =
    "select spbm, round(quantity - coalesce((select amount from down_others where tbl = 'stock'"
    " and key = spbm), 0), 6) as quantity from stock";
constexpr std::size_t kItemsAtOnce = 500;
constexpr std::size_t kRowsAtOnce = 50;
constexpr std::size_t kBillsAtOnce = 200;

std::int64_t highest(Connection& connection, const std::string& table) {
  Rows rows = connection.query(("select max(id) as id from " + table).c_str());
  return rows.next() ? rows.whole("id").value_or(0) : 0;
}

}  // namespace

JournalBase::JournalBase(Connection& connection) : connection_(connection) {
  ensure(connection.inTransaction(), "what is stated is what the transaction leaves");
  Rows lines = connection.query(
      "select l.bm as item, l.amount as amount, l.ratio as ratio from operators o"
      " join sell s on s.operator_id = o.id and s.state = 0 join sellProducts l on l.sellId = "
      "s.id");
  while (lines.next()) {
    double& taken = taken_[asciiLower(lines.text("item"))];
    taken = roundedQuantity(taken +
                            lines.number("amount").value_or(0) * lines.number("ratio").value_or(1));
  }
}

void JournalBase::state() const {
  Json begun = Json::object();
  for (const char* table : {"sell", "un_sell", "cardStored", "member", "shift"})
    begun["last"][table] = highest(connection_, table);
  begun["open"] = Json::array();
  Rows bills = connection_.query("select id from sell where state = 0 order by id");
  while (bills.next()) begun["open"].push_back(bills.whole("id").value_or(0));
  const Journal journal(connection_);
  journal.append(journal.last(), EntryKind::kJournalBegun, {}, std::move(begun));
  stateStock();
  stateRows("members", "select id from member where id > ? order by id", memberRecord);
  stateRows("operators", "select id from operators where id > ? order by id", operatorRecord);
  stateRows("returns", "select id from un_sell where id > ? order by id", returnRecord);
  stateRows("top_ups", "select id from cardStored where id > ? order by id", topUpRecord);
  stateRows("shifts", "select id from shift where id > ? order by id", shiftRecord);
  stateParameters();
  stateBills();
}

void JournalBase::append(EntryKind kind, const char* name, nlohmann::json rows) const {
  Json body = Json::object();
  body[name] = std::move(rows);
  const Journal journal(connection_);
  journal.append(journal.last(), kind, {}, std::move(body));
}

void JournalBase::stateRows(const char* name, const char* query, Record record,
                            std::int64_t behind) const {
  Json rows = Json::array();
  Rows found = connection_.query(query, behind);
  while (found.next()) {
    rows.push_back(record(connection_, found.whole("id").value_or(0)));
    if (rows.size() < kRowsAtOnce) continue;
    append(EntryKind::kBooksStated, name, std::exchange(rows, Json::array()));
  }
  if (!rows.empty()) append(EntryKind::kBooksStated, name, std::move(rows));
}

std::string JournalBase::quantityText(const std::string& item, double inStock) const {
  const auto taken = taken_.find(asciiLower(item));
  return generalNumber(roundedQuantity(inStock + (taken == taken_.end() ? 0 : taken->second)));
}

void JournalBase::stateStock() const {
  Json stock = Json::object();
  Rows rows = connection_.query(kOwnStock);
  while (rows.next()) {
    const std::string item = rows.text("spbm");
    stock[item] = quantityText(item, rows.number("quantity").value_or(0));
    if (stock.size() < kItemsAtOnce) continue;
    append(EntryKind::kBooksStated, "stock", std::exchange(stock, Json::object()));
  }
  if (!stock.empty()) append(EntryKind::kBooksStated, "stock", std::move(stock));
}

void JournalBase::noteStock(const std::vector<std::string>& items) const {
  if (!Journal(connection_).isOn()) return;
  Json stock = Json::object();
  for (const std::string& item : items) {
    Rows row = connection_.query((std::string(kOwnStock) + " where spbm = ?").c_str(), item);
    if (!row.next()) continue;
    stock[row.text("spbm")] = quantityText(item, row.number("quantity").value_or(0));
    if (stock.size() < kItemsAtOnce) continue;
    append(EntryKind::kStockCounted, "stock", std::exchange(stock, Json::object()));
  }
  if (!stock.empty()) append(EntryKind::kStockCounted, "stock", std::move(stock));
}

void JournalBase::noteMembers(std::int64_t lastTopUp) const {
  if (!Journal(connection_).isOn()) return;
  stateRows("members", "select id from member where id > ? order by id", memberRecord);
  stateRows("top_ups", "select id from cardStored where id > ? order by id", topUpRecord,
            lastTopUp);
}

void JournalBase::stateParameters() const {
  Json parameters = Json::object();
  Rows rows = connection_.query("select name, value from sys_param");
  while (rows.next()) parameters[rows.text("name")] = rows.text("value");
  append(EntryKind::kBooksStated, "parameters", std::move(parameters));
}

void JournalBase::stateBills() const {
  Json some = Json::object();
  std::string marks;
  std::size_t count = 0;
  const auto close = [&] {
    some["count"] = count;
    some["mark"] = textMark(marks);
    append(EntryKind::kBooksStated, "bills", std::exchange(some, Json::object()));
    marks.clear();
    count = 0;
  };
  Rows bills = connection_.query("select id from sell where state = 1 order by id");
  while (bills.next()) {
    const std::int64_t number = bills.whole("id").value_or(0);
    if (count == 0) some["first"] = number;
    some["last"] = number;
    marks += billMark(connection_, number);
    if (++count == kBillsAtOnce) close();
  }
  if (count > 0) close();
}
