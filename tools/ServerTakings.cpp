#include "tools/ServerTakings.h"

#include <algorithm>

#include "base/Failure.h"
#include "base/Text.h"
#include "base/Words.h"
#include "saleslib/Tenders.h"
#include "store/Row.h"

namespace {

using std::chrono_literals::operator""h;

constexpr auto kPatience = std::chrono::milliseconds(1h);  // of a sorting of years
constexpr const char* kFetch = "fetch 4096 from rows";

const ServerAnswer& required(const ServerAnswer& answer) {
  if (!answer.isDone()) throw Failure(Words::tr("服务器没有照办：%1", answer.text));
  return answer;
}

/// A row of the server's, by the names of the columns that were asked for.
class ServerRow : public Row {
 public:
  ServerRow(const std::vector<std::string>& columns, const ServerAnswer::Row& values)
      : columns_(columns), values_(values) {}

 protected:
  Value field(std::string_view column) const override {
    const auto found = std::ranges::find(columns_, column);
    ensure(found != columns_.end(), "a report reads what its source gives");
    const auto& value = values_.at(static_cast<std::size_t>(found - columns_.begin()));
    return value ? Value(std::in_place_type<std::string>, *value) : Value();
  }

 private:
  const std::vector<std::string>& columns_;
  const ServerAnswer::Row& values_;
};

}  // namespace

ServerTakings::ServerTakings(ServerLine& line, Part part) : line_(line), part_(part) {
  required(line_.ask("begin isolation level repeatable read read only"));
}

ServerTakings::~ServerTakings() {
  line_.ask("rollback");
}

bool ServerTakings::walk(const Columns& columns, const std::string& query,
                         const ServerAnswer::Row& values, const Taker& taker) {
  std::string statement = "declare rows no scroll cursor for select ";
  for (const std::string& column : columns)
    statement.append(&column == columns.data() ? "" : ", ").append(column);
  required(line_.ask(statement.append(" from ").append(query).c_str(), values, kPatience));
  bool goesOn = true;
  while (goesOn) {
    const ServerAnswer page = required(line_.ask(kFetch, {}, kPatience));
    if (page.rows.empty()) break;
    goesOn = std::ranges::all_of(
        page.rows, [&](const ServerAnswer::Row& row) { return taker(ServerRow(columns, row)); });
  }
  required(line_.ask("close rows"));
  return goesOn;
}

bool ServerTakings::walk(const Columns& columns, const std::string& view, const Time& time,
                         const std::string& order, const Taker& taker) {
  const std::string column = time.column;
  std::string query = view + " where " + column + " >= $1 and " + column + " < $2";
  if (part_.till) query += " and till = " + std::to_string(*part_.till);
  if (part_.bill) query += " and bill = " + std::to_string(*part_.bill);
  return walk(columns, query + " order by " + order,
              {storedText(time.from), storedText(time.until)}, taker);
}

bool ServerTakings::sold(const DateTime& from, const DateTime& until, const Taker& taker) {
  Columns columns = {"id",       "ratio",    "line_quantity", "bm",   "splbmc",    "money",
                     "in_price", "discount", "price",         "name", "sell_time", "operator_id",
                     "quantity", "amount",   "goods_amount",  "till", "bill"};
  for (const TenderKind& kind : tenderKinds()) columns.emplace_back(kind.column);
  return walk(columns, "shop.sold", {"sell_time", from, until}, "sell_time, id, line", taker);
}

void ServerTakings::returned(const DateTime& from, const DateTime& until, const Taker& taker) {
  if (part_.bill) return;
  walk({"bm", "name", "quantity", "ratio", "money", "operator_id"}, "shop.returned",
       {"un_time", from, until}, "un_time, till, seq", taker);
}

bool ServerTakings::goods(const Taker& taker) {
  return walk({"f_spbm", "quantity", "f_spmc", "f_splbmc", "f_zhjj"}, "shop.report_goods", {},
              taker);
}

std::string ServerTakings::goodsName(const std::string& code) {
  const ServerAnswer row = required(line_.ask(
      "select name from shop.report_names where tbl = 'spda' and key = $1", {asciiLower(code)}));
  return row.rows.empty() ? "" : row.rows[0].at(0).value_or("");
}

std::map<std::int64_t, std::string> ServerTakings::operatorNames() {
  const ServerAnswer told = required(line_.ask("select id, name from shop.report_operators"));
  std::map<std::int64_t, std::string> names;
  for (const ServerAnswer::Row& row : told.rows)
    names[wholeAt(row, 0).value_or(0)] = row.at(1).value_or("");
  return names;
}

std::string ServerTakings::shopName() {
  const ServerAnswer row = required(
      line_.ask("select name from shop.report_names where tbl = 'sys_param' and key = 'shopname'"));
  return row.rows.empty() ? "" : row.rows[0].at(0).value_or("");
}
