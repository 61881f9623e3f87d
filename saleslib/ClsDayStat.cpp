#include "saleslib/ClsDayStat.h"

#include "base/Failure.h"
#include "base/NumberText.h"
#include "store/Connection.h"
#include "store/IndexWalk.h"

void ClsDayStat::DayQuery(Connection& connection, const Date& day, std::int64_t,
                          std::int32_t operatorId) {
  select(connection, connection.query("select * from sell where operator_id = ? and state = 1"
                                      " and sell_time >= ? and sell_time < ? order by id",
                                      operatorId, DateTime{day}, DateTime{plusDays(day, 1)}));
}

// Walked backwards from the latest time; only a few open bills are stepped over.
std::shared_ptr<ClsSell> ClsDayStat::LastSell(Connection& connection) const {
  static const std::string latest = "select * from " + walkedAlong("sell", "sell_time") +
                                    " where state = 1 order by sell_time desc, id desc limit 1";
  Rows rows = connection.query(latest.c_str());
  return rows.next() ? ClsSell::fromRow(connection, rows) : nullptr;
}

void ClsDayStat::OpenQuery(Connection& connection, std::int32_t operatorId) {
  select(connection,
         connection.query("select * from sell where operator_id = ? and state = 0 and paid = 0"
                          " and held = 0 order by id",
                          operatorId));
  for (const auto& bill : sells_) bill->LoadLines();
}

void ClsDayStat::HeldQuery(Connection& connection) {
  select(connection, connection.query("select * from sell where held = 1 order by id"));
  for (const auto& bill : sells_) bill->LoadLines();
}

void ClsDayStat::PaidQuery(Connection& connection) {
  select(connection,
         connection.query("select * from sell where paid = 1 and state = 0 order by id"));
}

void ClsDayStat::select(Connection& connection, Rows rows) {
  sells_.clear();
  while (rows.next()) sells_.push_back(ClsSell::fromRow(connection, rows));
}

double ClsDayStat::SumQuantity() const {
  double sum = 0;
  for (const auto& bill : sells_) sum = roundedQuantity(sum + bill->Quantity());
  return sum;
}

template <class Figure>
std::optional<Currency> ClsDayStat::sumOf(const Figure& figure) const {
  try {
    Currency sum;
    for (const auto& bill : sells_) sum += figure(*bill);
    return sum;
  } catch (const Overflow&) {
    return std::nullopt;
  }
}

std::optional<Currency> ClsDayStat::SumMoney() const {
  return sumOf([](const ClsSell& bill) { return bill.Amount(); });
}

std::optional<Currency> ClsDayStat::SumTendered(Tender tender) const {
  return sumOf([tender](const ClsSell& bill) { return bill.Tendered(tender); });
}
