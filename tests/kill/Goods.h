#pragma once

#include <map>
#include <string>
#include <vector>

#include "base/DateTime.h"
#include "kill/Ledger.h"
#include "store/Connection.h"

/// The goods and cards of the demo shop that the day is played with, with prices worked out here
/// and not by the till.
class Goods {
 public:
  struct Card {
    std::string password;
    Discount discount;
  };

  // Goods whose barcode is theirs alone, has the length of a barcode and asks for no price.
  explicit Goods(Connection& connection) {
    Rows rows = connection.query(
        "select *, case when kssj <= ?1 and jssj >= ?1 then cxj end as promotion from tmda t "
        "where length(sptm) > 5 and xsdj > 0 "
        "and (select count(*) from tmda o where o.sptm = t.sptm) = 1 order by id",
        storedText({localTime().date}));
    while (rows.next()) {
      const auto promotion = rows.currency("promotion");
      const double discount = promotion ? 1 : rows.number("zk").value_or(1);
      items_.push_back({.retail = {.item = rows.text("spbm"),
                                   .code = rows.text("sptm"),
                                   .price = promotion.value_or(rows.currency("xsdj").value()),
                                   .discount = Discount(discount),
                                   .quantity = 1,
                                   .ratio = static_cast<int>(rows.whole("dwbl").value_or(1))},
                        .memberPrice = rows.currency("pfj").value_or(Currency())});
    }
    Rows cards = connection.query("select bh, password, discount from member where enabled = 1");
    while (cards.next()) {
      const Discount discount(cards.number("discount").value_or(1));
      cards_[cards.text("bh")] = {cards.text("password"), discount};
    }
  }

  std::size_t count() const { return items_.size(); }
  /// A line of one unit, as the till has to price it for that member ("": nobody).
  Ledger::Line line(std::size_t item, const std::string& member) const {
    const Item& chosen = items_.at(item);
    Ledger::Line line = chosen.retail;
    if (!member.empty() && chosen.memberPrice > Currency()) {
      line.price = chosen.memberPrice;
      line.discount = cards_.at(member).discount;
    }
    return line;
  }
  const std::map<std::string, Card>& cards() const { return cards_; }

 private:
  struct Item {
    Ledger::Line retail;
    Currency memberPrice;  ///< 0: none
  };

  std::vector<Item> items_;
  std::map<std::string, Card> cards_;
};
