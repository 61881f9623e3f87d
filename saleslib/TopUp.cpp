#include "saleslib/TopUp.h"

#include <optional>

#include "base/NumberText.h"
#include "saleslib/Fields.h"
#include "store/Connection.h"
#include "store/Literal.h"
#include "store/StoreError.h"
#include "store/Transaction.h"

namespace {

std::string amount(Currency money) {
  return quotedText(generalNumber(money));
}

/// The record of the same top-up begun before, for which nobody has been told to act yet.
std::optional<std::int64_t> begunRecord(Connection& connection, const TopUp& topUp) {
  Rows rows = connection.query(
      "select id from cardStored where complete = 0 and reported = 0 and cardbh = ?"
      " and inMoney = ? and addmoney = ? and commerce = ? and bz = ? order by id desc",
      topUp.cardNumber, topUp.paid, topUp.credited, topUp.balance, topUp.remark);
  return rows.next() ? rows.whole("id") : std::nullopt;
}

std::int64_t writeRecord(Connection& connection, const TopUp& topUp) {
  const std::optional<std::int64_t> record = connection.ExecuteInsert(
      "insert into cardStored([cardbh],[addmoney],[inMoney],[commerce],[bz]) values(" +
      quotedText(topUp.cardNumber) + "," + amount(topUp.credited) + " ," + amount(topUp.paid) +
      "  ," + amount(topUp.balance) + "  ," + quotedText(topUp.remark) + ")");
  return record.value();
}

/// The record's balance becomes what is on the card, should another sale have used it meanwhile.
void load(Connection& connection, const TopUp& topUp, std::int64_t record) {
  Transaction both(connection);
  const std::int64_t cards =
      connection.run("update member set card = round(card + ?, 4) where bh = ?",
                     topUp.balance - topUp.before, topUp.cardNumber);
  if (cards == 0) {
    throw StoreError("会员卡 " + topUp.cardNumber + " 已不在数据文件中，余额没有保存！");
  }
  connection.run(
      "update cardStored set complete = 1, commerce = (select card from member where bh = cardbh)"
      " where id = ?",
      record);
  both.commit();
}

}  // namespace

CardResult storeTopUp(Connection& connection, const TopUp& topUp) {
  const std::optional<StoredCard> card = findStoredCard(connection, {topUp.cardNumber});
  if (!card) return {};
  if (!card->isEnabled) return {CardOutcome::kBlocked, *card};
  CardResult result{CardOutcome::kDone, *card};
  result.card.balance += topUp.balance - topUp.before;
  const std::optional<std::int64_t> begun = begunRecord(connection, topUp);
  load(connection, topUp, begun ? *begun : writeRecord(connection, topUp));
  return result;
}

std::vector<IncompleteTopUp> incompleteTopUps(Connection& connection) {
  std::vector<IncompleteTopUp> found;
  Rows rows = connection.query("select * from cardStored where complete = 0 order by id");
  while (rows.next()) {
    found.push_back({.id = rows.whole("id").value_or(0),
                     .topUp = {.cardNumber = rows.text("cardbh"),
                               .paid = money(rows, "inMoney"),
                               .credited = money(rows, "addmoney"),
                               .balance = money(rows, "commerce"),
                               .remark = rows.text("bz")},
                     .isReported = rows.whole("reported").value_or(0) != 0});
  }
  return found;
}

void noteReported(Connection& connection, const IncompleteTopUp& topUp) {
  connection.run("update cardStored set reported = 1 where id = ?", topUp.id);
}
