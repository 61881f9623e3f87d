#include "demo/DemoGoods.h"

#include <stdexcept>

#include "base/DateTime.h"
#include "base/Text.h"
#include "store/Connection.h"
#include "store/DataFile.h"

namespace {

std::string first(Rows rows, const char* column, const char* what) {
  if (!rows.next()) throw std::runtime_error(std::string("the demo shop has no ") + what);
  return rows.text(column);
}

/// A fragment of an item number that no specification contains and that names one item.
std::string itemNumberFragment(Connection& shop) {
  Rows rows = shop.query("select f_sphh from spda where f_xsdj > 0 order by f_spbm");
  while (rows.next()) {
    const std::string number = rows.text("f_sphh");
    std::string fragment = firstCharacters(number, 5);
    if (characters(fragment) < 2) continue;
    const std::string pattern = "%" + fragment + "%";
    Rows same = shop.query("select count(*) as n from spda where f_sphh like ?", pattern);
    Rows spec = shop.query("select count(*) as n from tmda where ggxh like ?", pattern);
    if (same.next() && spec.next() && same.whole("n") == 1 && spec.whole("n") == 0) return fragment;
  }
  throw std::runtime_error("the demo shop has no item number of its own");
}

}  // namespace

DemoGoods DemoGoods::pick(const std::filesystem::path& dataFile) {
  const auto shop = openDataFile({dataFile, kBuiltInPassword});
  const std::string today = storedText({localTime().date});
  const std::string once =
      "(select count(*) from tmda o where o.sptm = t.sptm) = 1 and t.dwbl = 1 ";
  const std::string unpromoted = "and (t.kssj is null or t.kssj > ?1 or t.jssj < ?1) ";
  const std::string select = "select t.sptm from tmda t where ";
  const auto barcode = [&](const std::string& where, const char* what) {
    return first(shop->query((select + where).c_str(), today), "sptm", what);
  };
  DemoGoods goods;
  const std::string plain = once + unpromoted + "and t.zk = 1 and t.xsdj > 0 and t.jldw <> '公斤' ";
  goods.plain = barcode(plain + "order by t.spbm limit 1 offset 3", "plain item");
  goods.another = barcode(plain + "order by t.spbm limit 1 offset 40", "second plain item");
  goods.promoted = barcode(once + "and t.kssj <= ?1 and t.jssj >= ?1", "item on promotion");
  goods.discounted = barcode(once + unpromoted + "and t.zk < 1 and t.xsdj > 0", "discounted item");
  goods.byTheCase = barcode("t.dwbl > 1 and (?1 <> '')", "item by the case");
  goods.weighed = barcode(once + unpromoted + "and t.jldw = '公斤' and t.xsdj > 0", "weighed item");
  goods.unpriced = barcode("t.xsdj = 0 and (?1 <> '')", "item without a price");
  goods.twice = barcode("(select count(*) from tmda o where o.sptm = t.sptm) > 1 and (?1 <> '')",
                        "barcode of two items");
  goods.specification = firstCharacters(
      first(shop->query("select ggxh from tmda where length(ggxh) >= 3 and xsdj > 0 order by spbm"),
            "ggxh", "specification"),
      3);
  goods.itemNumber = itemNumberFragment(*shop);
  goods.category = first(shop->query("select splbmc from tmda where sptm = ?", goods.plain),
                         "splbmc", "category");
  Rows card = shop->query("select bh, password from member where card > 300 and enabled = 1");
  if (!card.next()) throw std::runtime_error("the demo shop has no card with a balance");
  goods.card = card.text("bh");
  goods.cardPassword = card.text("password");
  return goods;
}
