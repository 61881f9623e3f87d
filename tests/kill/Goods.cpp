#include "kill/Goods.h"

#include "base/DateTime.h"
#include "store/Connection.h"

// Goods whose barcode is theirs alone, has the length of a barcode and asks for no price.
Goods::Goods(Connection& connection) {
  const std::string today = storedText({localTime().date});
  Rows rows = connection.query(
      "select *, (kssj <= ?1 and jssj >= ?1) as promoted from tmda t where length(sptm) > 5 "
      "and (select count(*) from tmda o where o.sptm = t.sptm) = 1 and xsdj > 0 order by id",
      today);
  while (rows.next()) {
    const bool promoted = rows.whole("promoted").value_or(0) != 0;
    items_.push_back({.retail = {.item = rows.text("spbm"),
                                 .code = rows.text("sptm"),
                                 .price = rows.currency(promoted ? "cxj" : "xsdj").value(),
                                 .discount = Discount(promoted ? 1 : rows.number("zk").value_or(1)),
                                 .quantity = 1,
                                 .ratio = static_cast<int>(rows.whole("dwbl").value_or(1))},
                      .memberPrice = rows.currency("pfj").value_or(Currency())});
  }
  Rows cards = connection.query("select bh, password, discount from member where enabled = 1");
  while (cards.next()) {
    cards_[cards.text("bh")] = {cards.text("password"),
                                Discount(cards.number("discount").value_or(1))};
  }
}

Ledger::Line Goods::line(std::size_t item, const std::string& member) const {
  const Item& chosen = items_[item];
  Ledger::Line line = chosen.retail;
  if (!member.empty() && chosen.memberPrice > Currency()) {
    line.price = chosen.memberPrice;
    line.discount = cards_.at(member).discount;
  }
  return line;
}
