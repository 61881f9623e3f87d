#include "storm/Figures.h"

#include <cmath>
#include <stdexcept>

#include "link/ServerLine.h"
#include "store/Connection.h"

namespace {

// A union of names and figures each; ?1 is what names of a till end with.
constexpr const char* kAtTill =
    "select 'stock of ' || lower(spbm) as name, quantity as figure from stock"
    " union all select 'card of ' || lower(bh), card from member"
    " union all select 'bills of ' || ?1, count(*) from sell where state = 1"
    " union all select 'lines of ' || ?1, count(*) from sell s join sellProducts l"
    " on s.id = l.sellId where state = 1"
    " union all select 'returns of ' || ?1, count(*) from un_sell"
    " union all select 'entries of ' || ?1, count(*) from fact";
constexpr const char* kAtServer =
    "select 'stock of ' || item, quantity from shop.stock"
    " union all select 'card of ' || number, balance from shop.card_balance"
    " union all select 'bills of ' || till, count(*) from shop.sale group by till"
    " union all select 'lines of ' || till, count(*) from shop.sale_line group by till"
    " union all select 'returns of ' || till, count(*) from shop.taken_back group by till"
    " union all select 'entries of ' || till, count(*) from shop.fact group by till";

constexpr double kSame = 0.00005;  // the sums of thousands of figures with four decimals

}  // namespace

Figures figuresOf(Connection& till, int number) {
  Figures figures;
  Rows rows = till.query(kAtTill, std::to_string(number));
  while (rows.next()) figures[rows.text("name")] = std::stod(rows.text("figure"));
  return figures;
}

Figures figuresOf(ServerLine& server) {
  const ServerAnswer answer = server.ask(kAtServer);
  if (!answer.isDone()) throw std::runtime_error(answer.text);
  Figures figures;
  for (const ServerAnswer::Row& row : answer.rows)
    figures[row.at(0).value_or("")] = std::stod(row.at(1).value_or("0"));
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
