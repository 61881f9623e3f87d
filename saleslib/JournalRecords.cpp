#include "saleslib/JournalRecords.h"

#include <initializer_list>
#include <nlohmann/json.hpp>

#include "saleslib/JournalEntry.h"
#include "saleslib/Tenders.h"
#include "store/Connection.h"

namespace {

using Json = nlohmann::json;
using Columns = std::initializer_list<const char*>;

// What is empty or nothing is left out: a further column changes no record of a row without it.
void add(Json& record, const char* name, std::string text) {
  if (!text.empty() && text != "0") record[name] = std::move(text);
}

Json recordOf(const Row& row, const Columns& columns) {
  Json record = Json::object();
  for (const char* column : columns) add(record, column, row.text(column));
  return record;
}

void addMark(Json& record, const Row& row) {
  const std::string secret = row.text("password");
  if (!secret.empty()) record["password"] = textMark(row.text("id") + ":" + secret);
}

Json rowOf(Connection& connection, const char* query, std::int64_t id, const Columns& columns) {
  Rows rows = connection.query(query, id);
  return rows.next() ? recordOf(rows, columns) : Json();
}

}  // namespace

nlohmann::json billRecord(Connection& connection, std::int64_t number) {
  Rows row = connection.query("select * from sell where id = ?", number);
  if (!row.next()) return {};
  Json bill =
      recordOf(row, {"id", "sell_time", "operator_id", "quantity", "goods_amount", "amount",
                     "card_no", "phone_slip", "salesman", "member_id", "shift", "cash_kept"});
  for (const TenderKind& kind : tenderKinds()) add(bill, kind.column, row.text(kind.column));
  Json lines = Json::array();
  Rows rows = connection.query("select * from sellProducts where sellId = ? order by id", number);
  while (rows.next()) {
    lines.push_back(
        recordOf(rows, {"id", "insert_Date", "bm", "name", "unit", "amount", "price", "discount",
                        "money", "in_price", "splbmc", "entry_code", "ratio", "origin"}));
  }
  return {{"bill", std::move(bill)}, {"lines", std::move(lines)}};
}

nlohmann::json returnRecord(Connection& connection, std::int64_t id) {
  return rowOf(connection, "select * from un_sell where id = ?", id,
               {"id", "un_time", "sell_id", "item_id", "quantity", "money", "cost", "ratio",
                "discount", "operator_id", "shift"});
}

nlohmann::json topUpRecord(Connection& connection, std::int64_t id) {
  return rowOf(connection, "select * from cardStored where id = ?", id,
               {"id", "cardbh", "addmoney", "inMoney", "commerce", "bz", "complete", "shift"});
}

nlohmann::json memberRecord(Connection& connection, std::int64_t id) {
  Rows row = connection.query(
      "select *, round(card - coalesce((select amount from down_others where tbl = 'card'"
      " and key = bh), 0), 4) as own_card, round(total_spent - coalesce((select amount from"
      " down_others where tbl = 'spent' and key = bh), 0), 4) as own_spent,"
      " cast(points - coalesce((select amount from down_others where tbl = 'points'"
      " and key = bh), 0) as integer) as own_points from member where id = ?",
      id);
  if (!row.next()) return {};
  Json member = recordOf(row, {"id", "bh", "name", "hyzklb", "sex", "age", "phone", "address",
                               "other", "enabled", "discount", "birthday", "join_date"});
  add(member, "card", row.text("own_card"));
  add(member, "total_spent", row.text("own_spent"));
  add(member, "points", row.text("own_points"));
  addMark(member, row);
  return member;
}

nlohmann::json operatorRecord(Connection& connection, std::int64_t id) {
  Rows row = connection.query("select * from operators where id = ?", id);
  if (!row.next()) return {};
  Json person = recordOf(row, {"id", "name", "code"});
  addMark(person, row);
  Rows card = connection.query("select track from operator_cards where operator_id = ?", id);
  if (card.next()) person["card"] = textMark(card.text("track"));
  Json rights = Json::array();
  Rows rows = connection.query(
      "select right_key from operator_rights where operator_id = ? order by right_key", id);
  while (rows.next()) rights.push_back(rows.text("right_key"));
  person["rights"] = std::move(rights);
  return person;
}

nlohmann::json shiftRecord(Connection& connection, std::int64_t id) {
  Json shift = rowOf(connection, "select * from shift where id = ?", id,
                     {"id", "opened", "opened_by", "opened_name", "cash_float", "closed",
                      "closed_by", "closed_name"});
  if (shift.is_null()) return {};
  const auto addRows = [&](const char* name, const char* query, const Columns& columns) {
    Rows rows = connection.query(query, id);
    while (rows.next()) shift[name].push_back(recordOf(rows, columns));
  };
  addRows("moves", "select * from shift_cash where shift = ? order by id",
          {"id", "time", "operator_id", "name", "amount", "reason"});
  addRows("counts", "select * from shift_count where shift = ? order by attempt, piece",
          {"attempt", "piece", "pieces"});
  addRows("figures", "select * from shift_figure where shift = ? order by kind",
          {"kind", "count", "amount"});
  return shift;
}

std::string billMark(Connection& connection, std::int64_t number) {
  return textMark(billRecord(connection, number)
                      .dump(-1, ' ', false, nlohmann::json::error_handler_t::replace));
}
