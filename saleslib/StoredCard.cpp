#include "saleslib/StoredCard.h"

#include "base/Failure.h"
#include "saleslib/Fields.h"
#include "saleslib/PasswordHash.h"
#include "store/Connection.h"
#include "store/Literal.h"
#include "store/Transaction.h"

// Balances, purchases and points are written as what they change by, never as what they were read
// as plus something: whatever else wrote them meanwhile is kept. Money is rounded as its columns
// hold it, since the engine adds in binary.

namespace {

StoredCard cardOf(const Row& row) {
  return {.number = row.text("bh"),
          .memberName = row.text("name"),
          .discountClass = row.text("hyzklb"),
          .balance = money(row, "card"),
          .isEnabled = row.whole("enabled").value_or(0) != 0};
}

CardOutcome refusal(Connection& connection, const StoredCard& card, const std::string& password) {
  if (!card.isEnabled) return CardOutcome::kBlocked;
  Rows row = connection.query("select password from member where bh = ?", card.number);
  const std::string kept = row.next() ? row.text("password") : "";
  const bool isTheirs = isHash(kept) ? passwordMatches(kept, password) : kept == password;
  return isTheirs ? CardOutcome::kDone : CardOutcome::kWrongPassword;
}

}  // namespace

std::optional<StoredCard> findStoredCard(Connection& connection,
                                         const std::vector<std::string>& numbers) {
  for (const std::string& number : numbers) {
    Rows rows = connection.Read("select * from member where bh=" + quotedText(number));
    if (rows.next()) return cardOf(rows);
  }
  return std::nullopt;
}

CardResult chargeCard(Connection& connection, const std::string& number,
                      const std::string& password, Currency due) {
  ensure(due >= Currency(), "a charge loads no card");
  Transaction charging(connection);
  CardResult result = provenCard(connection, number, password);
  if (result.outcome != CardOutcome::kDone) return result;
  const std::int64_t charged =
      connection.run("update member set card = round(card - ?, 4) where bh = ? and card >= ?", due,
                     result.card.number, due);
  ensure(charged <= 1, "a card's number is one member's");
  if (charged == 0) return {CardOutcome::kTooLittle, result.card};
  charging.commit();
  result.card.balance -= due;
  ensure(result.card.balance >= Currency(), "a card is charged what it holds at most");
  return result;
}

CardResult provenCard(Connection& connection, const std::string& number,
                      const std::string& password) {
  const std::optional<StoredCard> found = findStoredCard(connection, {number});
  if (!found) return {};
  return {refusal(connection, *found, password), *found};
}

void followCharge(Connection& connection, const std::string& number, Currency due) {
  connection.run("update member set card = round(card - ?, 4) where bh = ?", due, number);
}

Credit creditPurchase(Connection& connection, std::int32_t memberId, Currency amount,
                      std::int16_t pointUnit) {
  Transaction crediting(connection);
  Rows rows = connection.query("select total_spent, points from member where id = ?", memberId);
  if (!rows.next()) return {};
  const std::int16_t points = whole16(rows, "points");
  try {
    static_cast<void>(money(rows, "total_spent") + amount);
  } catch (const Overflow&) {
    return {};
  }
  const int earned = pointsAfter(amount, pointUnit, points).value_or(points) - points;
  connection.run(
      "update member set total_spent = round(total_spent + ?, 4), points = points + ?"
      " where id = ?",
      amount, earned, memberId);
  crediting.commit();
  return {memberId, amount, earned};
}

void debitPurchase(Connection& connection, std::int32_t memberId, Currency refund) {
  connection.run("update member set total_spent = round(total_spent - ?, 4) where id = ?", refund,
                 memberId);
}
