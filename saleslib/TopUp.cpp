#include "saleslib/TopUp.h"

#include "base/NumberText.h"
#include "saleslib/CardNumber.h"
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

void writeBalance(Connection& connection, const TopUp& topUp, std::int64_t record) {
  Transaction both(connection);
  const std::int64_t cards = connection.Execute(" update member set card=" + amount(topUp.balance) +
                                                " where bh= " + quotedText(topUp.cardNumber));
  if (cards == 0) {
    throw StoreError("会员卡 " + topUp.cardNumber + " 已不在数据文件中，余额没有保存！");
  }
  connection.run("update cardStored set complete = 1 where id = ?", record);
  both.commit();
}

}  // namespace

std::optional<StoredCard> findStoredCard(Connection& connection, std::string_view typed) {
  for (const std::string& number : storedCardNumbers(typed)) {
    Rows rows = connection.Read("select * from member where bh=" + quotedText(number));
    if (!rows.next()) continue;
    return StoredCard{.number = rows.text("bh"),
                      .memberName = rows.text("name"),
                      .discountClass = rows.text("hyzklb"),
                      .balance = money(rows, "card"),
                      .isEnabled = rows.whole("enabled").value_or(0) != 0};
  }
  return std::nullopt;
}

void storeTopUp(Connection& connection, const TopUp& topUp) {
  const std::optional<std::int64_t> begun = begunRecord(connection, topUp);
  writeBalance(connection, topUp, begun ? *begun : writeRecord(connection, topUp));
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
