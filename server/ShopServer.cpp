#include "server/ShopServer.h"

#include "base/Failure.h"
#include "base/Words.h"
#include "link/ServerLine.h"
#include "server/ChainCheck.h"
#include "server/ServerSteps.h"

namespace {

using std::chrono_literals::operator""h;
using std::chrono_literals::operator""min;

constexpr auto kPatience = std::chrono::milliseconds(1min);
constexpr auto kLongPatience = std::chrono::milliseconds(12h);  // of what goes through everything
constexpr std::size_t kMostFaults = 20;
constexpr int kFoldedAtOnce = 50;  // items

const ServerAnswer& required(const ServerAnswer& answer) {
  if (!answer.isDone()) throw Failure(Words::tr("服务器没有照办：%1", answer.text));
  return answer;
}

std::string roleOf(int till) {
  return "till_" + std::to_string(till);
}

std::int64_t number(const ServerAnswer::Row& row, std::size_t column) {
  return wholeAt(row, column).value_or(0);
}

}  // namespace

int ShopServer::stepsDone() {
  const ServerAnswer known = required(line_.ask("select to_regclass('shop.step') is not null"));
  if (known.rows.at(0).at(0) != "t") return 0;
  const ServerAnswer steps = required(line_.ask("select coalesce(max(number), 0) from shop.step"));
  return static_cast<int>(number(steps.rows.at(0), 0));
}

std::string ShopServer::stepsBehind(int done) {
  const auto count = static_cast<int>(serverSteps().size());
  if (done > count)
    throw Failure(Words::tr("服务器上的店铺是更新版本的程序建立的（%1 步，这个程序有 %2 步）。",
                            done, count));
  std::string script;
  for (int step = done + 1; step <= count; ++step) {
    script.append(serverSteps()[static_cast<std::size_t>(step - 1)])
        .append("\ninsert into shop.step (number) values (" + std::to_string(step) + ");\n");
  }
  return script;
}

int ShopServer::init(const std::string& authority) {
  required(line_.run(kServerRoles, kPatience));
  const auto count = static_cast<int>(serverSteps().size());
  const int done = stepsDone();
  if (done > 0) requireCurrent();
  if (const std::string script = stepsBehind(done); !script.empty())
    required(line_.run("begin; set local role shop_keeper;\n" + script + "commit", kPatience));
  if (!authority.empty()) {
    required(
        line_.ask("insert into shop.setting values ('authority', $1)"
                  " on conflict (name) do update set value = excluded.value",
                  {authority}));
  }
  return count - done;
}

void ShopServer::requireCurrent() {
  if (stepsDone() < static_cast<int>(serverSteps().size()))
    throw Failure(Words::tr("店铺已经建好，是较早的版本；请用 tilladmin shop upgrade 升级。"));
}

ShopServer::Steps ShopServer::upgrade() {
  const int done = stepsDone();
  if (done == 0) throw Failure(Words::tr("服务器上还没有店铺，请先用 tilladmin shop init。"));
  const std::string script = stepsBehind(done);
  if (script.empty()) return {done, done};
  required(line_.run(kServerRoles, kPatience));
  required(
      line_.run("begin; set local role shop_keeper;\n" + script + "select shop.rebuild(); commit",
                kLongPatience));
  return {done, static_cast<int>(serverSteps().size())};
}

std::int64_t ShopServer::fold(int days) {
  requireCurrent();
  std::int64_t gone = 0;
  for (const char* step :
       {"select last, gone from shop.fold_movements($1, $2, now() - $3::interval)",
        "select last, gone from shop.fold_cards($1, $2, now() - $3::interval)",
        "select last, gone from shop.fold_credits($1, $2, now() - $3::interval)"}) {
    for (std::string behind;;) {
      const ServerAnswer done = required(
          line_.ask(step, {behind, std::to_string(kFoldedAtOnce), std::to_string(days) + " days"},
                    kPatience));
      gone += number(done.rows.at(0), 1);
      if (!done.rows[0][0]) break;
      behind = *done.rows[0][0];
    }
  }
  return gone;
}

ShopServer::Standby ShopServer::standby() {
  const ServerAnswer answer =
      required(line_.ask("select pg_is_in_recovery(),"
                         " exists (select from pg_stat_wal_receiver where status = 'streaming'),"
                         " to_char(pg_last_xact_replay_timestamp(), 'YYYY-MM-DD HH24:MI:SS'),"
                         " (select last_msg_receipt_time from pg_stat_wal_receiver)::text"));
  const ServerAnswer::Row& row = answer.rows.at(0);
  Standby found{.isStandby = row.at(0) == "t",
                .hearsFirst = row.at(1) == "t",
                .lastHeard = row.at(3).value_or(""),
                .lastRepeated = row.at(2).value_or("")};
  if (stepsDone() == 0)
    throw Failure(Words::tr("服务器上还没有店铺，请先用 tilladmin shop init。"));
  const ServerAnswer awaited =
      required(line_.ask("select value <> '' from shop.setting where name = 'awaits'"));
  found.wasAwaited = !awaited.rows.empty() && awaited.rows[0].at(0) == "t";
  return found;
}

// Its settings may be a copy of the first one's, and name a second server that is none any more:
// each commit would wait for it for ever.
void ShopServer::promote() {
  const ServerAnswer done = required(line_.ask("select pg_promote(true, 300)", {}, kLongPatience));
  if (done.rows.at(0).at(0) != "t") throw Failure(Words::tr("备机五分钟内没有成为主服务器。"));
  required(line_.ask("alter system set synchronous_standby_names = ''"));
  required(line_.ask("select pg_reload_conf()"));
}

JoinCode ShopServer::addTill(int till, bool again) {
  const ServerAnswer known = required(line_.ask(
      "select enrolled is not null from shop.till where till = $1", {std::to_string(till)}));
  if (!known.rows.empty() && known.rows[0].at(0) == "t" && !again) {
    throw Failure(Words::tr(
        "收银机 %1 已经加入。换机器或者重装要写 --again，原来的那台从此不能再传。", till));
  }
  JoinCode code = JoinCode::draw(till);
  const std::string role = roleOf(till), number = std::to_string(till);
  required(line_.run(
      "begin; set local role shop_keeper; set local client_min_messages = warning;"
      "do $$ begin"
      " if not exists (select from pg_roles where rolname = '" +
          role +
          "') then"
          "  create role " +
          role +
          " login;"
          " end if;"
          " execute format('alter role " +
          role + " login password %L valid until %L', '" + line_.verifierOf(code.secret, role) +
          "', now() + interval '1 day');"
          "end $$;"
          "grant tills to " +
          role +
          ";"
          "insert into shop.till (till, code_until) values (" +
          number +
          ", now() + interval '1 day')"
          " on conflict (till) do update set code_until = excluded.code_until, revoked = null;"
          "commit",
      kPatience));
  return code;
}

void ShopServer::revoke(int till) {
  const ServerAnswer gone =
      required(line_.ask("update shop.till set revoked = now() where till = $1 returning till",
                         {std::to_string(till)}));
  if (gone.rows.empty()) throw Failure(Words::tr("没有收银机 %1。", till));
  required(line_.run("begin; set local role shop_keeper; alter role " + roleOf(till) +
                         " nologin password null; commit",
                     kPatience));
  required(line_.ask("select pg_terminate_backend(pid) from pg_stat_activity where usename = $1",
                     {roleOf(till)}));
}

std::vector<ShopServer::Till> ShopServer::tills() {
  const ServerAnswer answer = required(line_.ask(
      "select till, epoch,"
      " case when revoked is not null then 'revoked' when code_until < now() then 'expired'"
      "      when code_until is not null then 'code' else 'joined' end,"
      " applied, told_pending, (select count(*) from shop.fault f where f.till = t.till),"
      " extract(epoch from now() - last_contact)::bigint,"
      " extract(epoch from told_clock - last_contact)::bigint, version"
      " from shop.till t order by till"));
  std::vector<Till> tills;
  for (const ServerAnswer::Row& row : answer.rows) {
    tills.push_back({.till = static_cast<int>(number(row, 0)),
                     .epoch = static_cast<int>(number(row, 1)),
                     .status = row.at(2).value_or(""),
                     .applied = number(row, 3),
                     .pending = number(row, 4),
                     .faults = number(row, 5),
                     .silentSeconds = wholeAt(row, 6),
                     .clockSeconds = wholeAt(row, 7),
                     .version = row.at(8).value_or("")});
  }
  return tills;
}

ShopServer::Checked ShopServer::check(bool rebuild) {
  requireCurrent();
  Checked found;
  followChains(found);
  const ServerAnswer sums = required(
      line_.ask("select s.till, s.bill from shop.sale s left join lateral"
                " (select coalesce(sum(money), 0) as money, coalesce(sum(quantity), 0) as quantity"
                "  from shop.sale_line l where (l.till, l.epoch, l.bill) = (s.till, s.epoch, "
                "s.bill)) l on true"
                " where l.money <> s.goods_amount or l.quantity <> s.quantity limit $1",
                {std::to_string(kMostFaults)}, kLongPatience));
  for (const ServerAnswer::Row& row : sums.rows) {
    found.faults.push_back(Words::tr("收银机 %1 的单据 %2：各行加起来与它不符",
                                     row.at(0).value_or(""), row.at(1).value_or("")));
  }
  const ServerAnswer agree = required(line_.ask("select agree from shop.compare_rows($1)",
                                                {rebuild ? "true" : "false"}, kLongPatience));
  if (agree.rows.at(0).at(0) != "t") {
    found.faults.push_back(rebuild ? Words::tr("账表与传来的记录不符，已按记录重新做好")
                                   : Words::tr("账表与传来的记录不符，可用 --rebuild 重新做好"));
  }
  const ServerAnswer bills = required(line_.ask("select count(*) from shop.sale"));
  found.bills = number(bills.rows.at(0), 0);
  return found;
}

void ShopServer::followChains(Checked& found) {
  ChainCheck chains(found.faults, kMostFaults);
  const ServerAnswer epochs =
      required(line_.ask("select till, epoch, from_seq, from_hash from"
                         " shop.fork"));
  for (const ServerAnswer::Row& row : epochs.rows) chains.addEpoch(row);
  ServerAnswer::Row last = {"0", "0", "0", "0"};
  for (;;) {
    const ServerAnswer page = required(line_.ask(
        "select shop.row_till(shop, till), epoch, seq, time, entry_till, operator, approver, kind,"
        " touches, body, hash, shop, till"
        " from shop.fact where (shop, till, epoch, seq) > ($1, $2, $3, $4)"
        " order by shop, till, epoch, seq limit 500",
        last, kLongPatience));
    if (page.rows.empty()) return;
    for (const ServerAnswer::Row& row : page.rows) chains.take(row);
    found.facts += static_cast<std::int64_t>(page.rows.size());
    const ServerAnswer::Row& row = page.rows.back();
    last = {row.at(11), row.at(12), row.at(1), row.at(2)};
  }
}

ShopServer::Joined ShopServer::enrol(ServerLine& line, int till, const std::string& password) {
  const ServerAnswer answer =
      required(line.ask("select epoch, highest_bill, authority from api.enrol($1, $2)",
                        {std::to_string(till), line.verifierOf(password, roleOf(till))}));
  const ServerAnswer::Row& row = answer.rows.at(0);
  return {.epoch = static_cast<int>(number(row, 0)),
          .highestBill = number(row, 1),
          .authority = row.at(2).value_or("")};
}
