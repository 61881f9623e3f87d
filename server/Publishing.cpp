#include "server/Publishing.h"

#include <nlohmann/json.hpp>
#include <string>
#include <utility>

#include "base/Failure.h"
#include "base/Words.h"
#include "link/ServerLine.h"
#include "saleslib/CardPassword.h"
#include "saleslib/MasterTables.h"
#include "saleslib/ShopLink.h"
#include "store/Connection.h"
#include "store/Transaction.h"

namespace {

using std::chrono_literals::operator""h;

constexpr auto kPatience = std::chrono::milliseconds(1h);
constexpr int kRowsAtOnce = 2'000;

ServerAnswer required(ServerAnswer answer) {
  if (!answer.isDone()) throw Failure(Words::tr("服务器没有照办：%1", answer.text));
  return answer;
}

class Sending {
 public:
  Sending(ServerLine& line, const PublishProgress& progress) : line_(line), progress_(progress) {}

  /// `row` is [table, key, row] as JSON.
  void add(const std::string& row) {
    page_ += (page_.empty() ? "[" : ",") + row;
    if (++rows_ % kRowsAtOnce == 0) send();
  }
  void send() {
    if (page_.empty()) return;
    required(
        line_.ask("insert into incoming select r->>0, r->>1, r->2"
                  " from jsonb_array_elements($1::jsonb) r",
                  {std::exchange(page_, {}) + "]"}, kPatience));
    progress_(rows_);
  }

 private:
  ServerLine& line_;
  const PublishProgress& progress_;
  std::string page_;
  std::int64_t rows_ = 0;
};

void sendTable(Connection& office, const MasterTable& table, Sending& sending) {
  const std::string text = "select " + table.keyText() + " as master_key, * from " + table.name;
  Rows rows = office.query(text.c_str());
  while (rows.next()) {
    const std::string key = rows.text("master_key");
    if (std::string_view(table.name) == "sys_param" && isOfTill(key)) continue;
    sending.add(R"([")" + std::string(table.name) + R"(",)" + nlohmann::json(key).dump() + "," +
                table.bodyOf(rows) + "]");
  }
}

// Once and for all: a hash made anew each time would be news to every till.
void hashPasswords(Connection& office) {
  Transaction hashing(office);
  hashCardPasswords(office);
  hashing.commit();
}

}  // namespace

Published publish(ServerLine& line, Connection& office, std::optional<int> shop,
                  const PublishProgress& progress) {
  if (shopLink(office)) {
    throw Failure(
        Words::tr("这是一台收银机的数据文件。请用办公室的数据文件：不加入店铺，商品、会员和操作员都"
                  "在里面。"));
  }
  hashPasswords(office);
  required(
      line.run("begin; create temporary table incoming (tbl text collate \"C\","
               " key text collate \"C\", body jsonb, primary key (tbl, key)) on commit drop",
               kPatience));
  Sending sending(line, progress);
  for (const MasterTable& table : masterTables()) sendTable(office, table, sending);
  sending.send();
  required(line.run("analyze incoming", kPatience));
  const ServerAnswer answer = required(
      shop ? line.ask("select added, changed, removed from shop.publish_for($1)",
                      {std::to_string(*shop)}, kPatience)
           : line.ask("select added, changed, removed from shop.publish()", {}, kPatience));
  required(line.run("commit", kPatience));
  const ServerAnswer::Row& row = answer.rows.at(0);
  return {.added = wholeAt(row, 0).value_or(0),
          .changed = wholeAt(row, 1).value_or(0),
          .removed = wholeAt(row, 2).value_or(0)};
}
