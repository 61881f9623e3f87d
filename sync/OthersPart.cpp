#include "sync/OthersPart.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <limits>

#include "store/Connection.h"

namespace {

constexpr const char* kStock = "stock";
constexpr const char* kPoints = "points";

struct MemberSum {
  const char* kind;
  const char* add;  ///< to the member of that number
};
constexpr std::array kMemberSums = {
    MemberSum{"card", "update member set card = round(card + ?, 4) where bh = ?"},
    MemberSum{"spent", "update member set total_spent = round(total_spent + ?, 4) where bh = ?"},
    MemberSum{kPoints, "update member set points = points + ? where bh = ?"}};

const MemberSum* memberSum(const std::string& kind) {
  const auto* found =
      std::ranges::find_if(kMemberSums, [&](const MemberSum& sum) { return kind == sum.kind; });
  return found == kMemberSums.end() ? nullptr : found;
}

double partTold(Connection& connection, const std::string& kind, const std::string& key) {
  Rows row =
      connection.query("select amount from down_others where tbl = ? and key = ?", kind, key);
  return row.next() ? row.number("amount").value_or(0) : 0;
}

void keepPart(Connection& connection, const std::string& kind, const std::string& key,
              double part) {
  if (connection.run("update down_others set amount = ? where tbl = ? and key = ?", part, kind,
                     key) == 0)
    connection.run("insert into down_others (tbl, key, amount) values (?, ?, ?)", kind, key, part);
}

void addToStock(Connection& connection, const std::string& item, double quantity) {
  const std::int64_t known = connection.run(
      "update stock set quantity = round(quantity + ?, 6) where spbm = ?", quantity, item);
  if (known > 0) return;
  connection.run(
      "insert into stock (spbm, quantity)"
      " values (coalesce((select f_spbm from spda where f_spbm = ?), ?), round(?, 6))",
      item, item, quantity);
}

std::int64_t pointsWithRoom(Connection& connection, const std::string& card, double more) {
  using Points = std::numeric_limits<std::int16_t>;
  Rows row = connection.query("select points from member where bh = ?", card);
  const auto wanted = static_cast<std::int64_t>(std::llround(more));
  if (!row.next()) return wanted;
  const std::int64_t now = row.whole("points").value_or(0);
  if (now < Points::min() || now > Points::max()) return 0;
  return std::clamp<std::int64_t>(now + wanted, Points::min(), Points::max()) - now;
}

}  // namespace

bool isOthersPart(const std::string& kind) {
  return kind == kStock || memberSum(kind) != nullptr;
}

void followOthers(Connection& connection, const std::string& kind, const std::string& key,
                  double part) {
  const double told = partTold(connection, kind, key);
  if (part == told) return;
  if (kind == kStock) {
    addToStock(connection, key, part - told);
  } else if (kind == kPoints) {
    const std::int64_t more = pointsWithRoom(connection, key, part - told);
    connection.run(memberSum(kind)->add, more, key);
    part = told + static_cast<double>(more);
  } else {
    connection.run(memberSum(kind)->add, part - told, key);
  }
  keepPart(connection, kind, key, part);
}

void giveOthersPart(Connection& connection, const std::string& card) {
  for (const MemberSum& sum : kMemberSums) {
    const double part = partTold(connection, sum.kind, card);
    if (part == 0) continue;
    keepPart(connection, sum.kind, card, 0);
    followOthers(connection, sum.kind, card, part);
  }
}
