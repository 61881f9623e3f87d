#include "bench/ShopFile.h"

#include <functional>
#include <string>
#include <vector>

#include "bench/Goods.h"
#include "saleslib/ClsOperator.h"
#include "store/Connection.h"
#include "store/DataFile.h"
#include "store/FragmentIndex.h"
#include "store/Schema.h"
#include "store/Transaction.h"

namespace shop_file {
namespace {

constexpr int kMostSoldGoods = 20'000;  // goods that are sold at all, in a large shop
constexpr const char* kMaker = "1";     // counts up when make() changes

// "now" as the engine's seconds since 1970.
std::string secondsOf(const Date& day) {
  return "cast(strftime('%s', '" + dateText(day) + "') as integer)";
}

/// Takes the indexes of a table away while it is filled: sorting once is quicker.
void withoutIndexes(Connection& shop, const std::string& table, const std::function<void()>& fill) {
  std::vector<std::string> names, statements;
  {
    Rows rows = shop.query(
        "select name, sql from sqlite_master where type = 'index' and tbl_name = ?"
        " and sql is not null",
        table);
    while (rows.next()) {
      names.push_back(rows.text("name"));
      statements.push_back(rows.text("sql"));
    }
  }
  for (const std::string& name : names) shop.runScript("drop index " + name);
  fill();
  for (const std::string& statement : statements) shop.runScript(statement);
}

void fillGoods(Connection& shop, int count) {
  for (int item = 0; item < count; ++item) {
    const std::string specification = goods::specification(item, count);
    shop.run(
        "insert into tmda (sptm, ggxh, spbm, spmc, spcd, jldw, xsdj, pfj, zk, dwbl, zhjj, splbmc)"
        " values (?, ?, ?, ?, '广东', '瓶', 2.5, 2.3, 1, 1, 1.2, '饮料')",
        goods::barcode(item), specification, goods::itemCode(item), goods::name(item));
    shop.run(
        "insert into spda (f_spbm, f_spmc, f_sphh, f_sptm, f_Ggxh, f_jldw, f_xsdj, f_pfj, f_zk,"
        " f_zhjj, f_spcd, f_splbmc)"
        " values (?, ?, ?, ?, ?, '瓶', 2.5, 2.3, 1, 1.2, '广东', '饮料')",
        goods::itemCode(item), goods::name(item), specification, goods::barcode(item),
        specification);
    shop.run("insert into stock (spbm, quantity) values (?, 1000000)", goods::itemCode(item));
  }
}

void fillPeople(Connection& shop) {
  ClsOperator cashier;
  cashier.Init(shop, kCashier);
  cashier.setName("张三");
  cashier.setCode("01");
  cashier.setPassword("");
  cashier.Save();
  shop.run("insert into operator_rights (operator_id, right_key) values (?, 'sell')", kCashier);
  for (int member = 0; member < kMembers; ++member) {
    shop.run("insert into member (bh, name, card, join_date) values (?, '王芳', 100, ?)",
             memberNumber(member), DateTime{kFirstDay});
  }
}

void fillBills(Connection& shop, int first, int count, const Date& day, std::int64_t seconds) {
  const std::string statement =
      "with recursive n (i) as (select 0 union all select i + 1 from n where i + 1 < ?)"
      " insert into sell (id, sell_time, operator_id, state, quantity, goods_amount, amount, cash,"
      " member_id)"
      " select i + ?, datetime(" +
      secondsOf(day) +
      " + i * ? / ?, 'unixepoch'), ?, 1, 5, 12.5, 12.5, 20,"
      " case when i % 4 = 0 then i / 4 % ? + 1 else 0 end from n";
  shop.run(statement.c_str(), count, first, seconds, count, kCashier, kMembers);
}

// What is sold comes from all over the goods.
void fillLines(Connection& shop, ShopSize size) {
  const int sold = std::min(size.goods, kMostSoldGoods);
  shop.runScript("create temp table sold (id integer primary key, bm, name, barcode)");
  for (int n = 0; n < sold; ++n) {
    const int item = n * (size.goods / sold);
    shop.run("insert into sold values (?, ?, ?, ?)", n, goods::itemCode(item), goods::name(item),
             goods::barcode(item));
  }
  shop.run(
      "with recursive n (i) as (select 0 union all select i + 1 from n where i + 1 < ?)"
      " insert into sellProducts (sellId, insert_Date, bm, name, unit, amount, price, discount,"
      " money, in_price, splbmc, entry_code, ratio, origin)"
      " select sell.id, sell.sell_time, bm, name, '瓶', 1, 2.5, 1, 2.5, 1.2, '饮料', barcode, 1,"
      " '广东' from n join sell on sell.id = n.i / ? + 1 join sold on sold.id = n.i * 7919 % ?",
      size.lines, kLinesPerBill, sold);
  shop.runScript("drop table temp.sold");
}

void fill(Connection& shop, ShopSize size) {
  constexpr std::int64_t kDay = 86'400;
  const int bills = size.lines / kLinesPerBill;
  Transaction making(shop);
  fillPeople(shop);
  shop.run("insert into SP_LB (SPLB_ID, SPLBMC) values (1, '饮料')");
  withoutIndexes(shop, "tmda", [&] { fillGoods(shop, size.goods); });
  withoutIndexes(shop, "sell", [&] {
    fillBills(shop, 1, bills - kBusyBills, kFirstDay, kHistoryDays * kDay);
    fillBills(shop, bills - kBusyBills + 1, kBusyBills, kBusyDay, kDay);
  });
  withoutIndexes(shop, "sellProducts", [&] { fillLines(shop, size); });
  updateFragmentIndex(shop);
  making.commit();
}

void pragma(Connection& shop, const char* statement) {
  Rows rows = shop.query(statement);
  while (rows.next()) {
  }
}

}  // namespace

std::string memberNumber(int member) {
  return "M" + std::to_string(member);
}

// Nobody's data is at stake while the file is made, so it is made without a log.
void make(const std::filesystem::path& file, ShopSize size) {
  const auto shop = createDataFile({file, kBuiltInPassword});
  pragma(*shop, "pragma journal_mode = off");
  pragma(*shop, "pragma synchronous = off");
  pragma(*shop, "pragma cache_size = -262144");
  fill(*shop, size);
  pragma(*shop, "pragma journal_mode = wal");
}

std::string version() {
  std::string all = kMaker;
  for (const std::string& step : schemaSteps()) all += step;
  return std::to_string(std::hash<std::string>()(all));
}

}  // namespace shop_file
