#include "saleslib/ClsSysParam.h"
#include "saleslib/Tenders.h"
#include "store/Connection.h"
#include "store/IndexWalk.h"
#include "takings/TakingsSource.h"

namespace {

/// Bills in the order of their time, each with its lines one after the other. The columns of a line
/// stand first, since they are asked for most often.
std::string billsAndLines() {
  std::string columns =
      "select sell.id, ratio, sellProducts.amount as line_quantity, bm, splbmc, money, in_price,"
      " discount, price, name, sell_time, operator_id, sell.quantity, sell.amount, goods_amount";
  for (const TenderKind& kind : tenderKinds()) columns.append(", ").append(kind.column);
  return columns.append(" from ")
      .append(walkedAlong("sell", "sell_time"))
      .append(" left join ")
      .append(walkedAlong("sellProducts", "sellProducts_bill"))
      .append(" on sellId = sell.id where state = 1 and sell_time >= ? and sell_time < ?")
      .append(" order by sell_time, sell.id");
}

bool walk(Rows rows, const TakingsSource::Taker& taker) {
  while (rows.next()) {
    if (!taker(rows)) return false;
  }
  return true;
}

}  // namespace

bool FileTakings::sold(const DateTime& from, const DateTime& until, const Taker& taker) {
  return walk(file_.query(billsAndLines().c_str(), from, until), taker);
}

void FileTakings::returned(const DateTime& from, const DateTime& until, const Taker& taker) {
  walk(file_.query("select coalesce(l.bm, e.bm) as bm, coalesce(l.name, e.name) as name,"
                   " un_sell.quantity, un_sell.ratio, un_sell.money, operator_id from un_sell"
                   " left join sellProducts l on l.id = item_id"
                   " left join return_elsewhere e on un_sell = un_sell.id"
                   " where un_time >= ? and un_time < ?",
                   from, until),
       taker);
}

bool FileTakings::goods(const Taker& taker) {
  return walk(file_.query("select f_spbm, quantity, f_spmc, f_splbmc, f_zhjj from spda"
                          " left join stock on spbm = f_spbm order by spda.id"),
              taker);
}

std::string FileTakings::goodsName(const std::string& code) {
  Rows row = file_.query("select f_spmc from spda where f_spbm = ?", code);
  return row.next() ? row.text("f_spmc") : std::string();
}

std::map<std::int64_t, std::string> FileTakings::operatorNames() {
  std::map<std::int64_t, std::string> names;
  Rows rows = file_.query("select id, name from operators");
  while (rows.next()) names[rows.whole("id").value()] = rows.text("name");
  return names;
}

std::string FileTakings::shopName() {
  ClsSysParam parameters;
  parameters.Conn(file_);
  return parameters.ShopName();
}
