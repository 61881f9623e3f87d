#include "storm/Figures.h"

#include <cmath>
#include <stdexcept>

#include "link/ServerLine.h"
#include "store/Connection.h"

namespace {

// Names and figures each; ?1 is what names of a till end with. What a held bill took is no fact
// yet.
constexpr const char* kShared =
    "with held as (select bm, sum(l.amount * ratio) as quantity from sellProducts l join sell s"
    " on s.id = l.sellId where s.held = 1 group by bm)"
    " select 'stock of ' || lower(spbm) as name, s.quantity + coalesce(h.quantity, 0) as figure"
    " from stock s left join held h on h.bm = s.spbm"
    " union all select 'card of ' || lower(bh), card from member"
    " union all select 'spent of ' || lower(bh), total_spent from member";
constexpr const char* kOthersPart =
    "select tbl || ' of ' || lower(key) as name, amount as figure from down_others"
    " where tbl <> 'points'";
constexpr const char* kOfTill =
    "select 'bills of ' || ?1 as name, count(*) as figure from sell where state = 1"
    " union all select 'lines of ' || ?1, count(*) from sell s join sellProducts l"
    " on s.id = l.sellId where state = 1"
    " union all select 'returns of ' || ?1, count(*) from un_sell"
    " union all select 'entries of ' || ?1, count(*) from fact";
constexpr const char* kSharedAtServer =
    "select 'stock of ' || item, quantity from shop.stock"
    " union all select 'card of ' || number, balance from shop.card_balance"
    " union all select 'spent of ' || number, amount from shop.member_sum where what = 'spent'";
constexpr const char* kOfTillsAtServer =
    "select 'bills of ' || till, count(*) from shop.sale group by till"
    " union all select 'lines of ' || till, count(*) from shop.sale_line group by till"
    " union all select 'returns of ' || till, count(*) from shop.taken_back group by till"
    " union all select 'entries of ' || till, count(*) from shop.fact group by till";

constexpr double kSame = 0.00005;  // the sums of thousands of figures with four decimals

Figures figuresOf(Rows rows) {
  Figures figures;
  while (rows.next()) figures[rows.text("name")] = std::stod(rows.text("figure"));
  return figures;
}

Figures figuresOf(const ServerAnswer& answer) {
  if (!answer.isDone()) throw std::runtime_error(answer.text);
  Figures figures;
  for (const ServerAnswer::Row& row : answer.rows)
    figures[row.at(0).value_or("")] = std::stod(row.at(1).value_or("0"));
  return figures;
}

}  // namespace

Figures ownFigures(Connection& till, int number) {
  Figures figures = shopFigures(till);
  addDifference(figures, figuresOf(till.query(kOfTill, std::to_string(number))),
                figuresOf(till.query(kOthersPart)));
  return figures;
}

Figures shopFigures(Connection& till) {
  return figuresOf(till.query(kShared));
}

Figures shopFigures(ServerLine& server) {
  return figuresOf(server.ask(kSharedAtServer));
}

Figures allFigures(ServerLine& server) {
  Figures figures = shopFigures(server);
  figures.merge(figuresOf(server.ask(kOfTillsAtServer)));
  return figures;
}

void addDifference(Figures& sums, const Figures& more, const Figures& less) {
  for (const auto& [name, figure] : more) sums[name] += figure;
  for (const auto& [name, figure] : less) sums[name] -= figure;
}

std::string difference(const Figures& expected, const Figures& found) {
  Figures wrong;
  addDifference(wrong, found, expected);
  std::string text;
  for (const auto& [name, by] : wrong) {
    if (std::abs(by) < kSame) continue;
    const auto known = expected.find(name);
    text += name + ": " + std::to_string(known == expected.end() ? 0 : known->second) +
            " at the tills, " + std::to_string(by) + " more at the server\n";
  }
  return text;
}
