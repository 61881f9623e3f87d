#include "saleslib/TopUpBooks.h"

#include <nlohmann/json.hpp>

#include "base/Failure.h"
#include "base/NumberText.h"
#include "base/Words.h"
#include "saleslib/CardNumber.h"
#include "saleslib/Fields.h"
#include "saleslib/Journal.h"
#include "saleslib/JournalRecords.h"
#include "store/Connection.h"
#include "store/Literal.h"
#include "store/StoreError.h"
#include "store/Transaction.h"

namespace {

std::string amount(Currency money) {
  return quotedText(generalNumber(money));
}

}  // namespace

/// The record of the same top-up begun before, for which nobody has been told to act yet.
std::optional<std::int64_t> TopUpBooks::begunRecord(const TopUp& topUp) const {
  Rows rows = connection_.query(
      "select id from cardStored where complete = 0 and reported = 0 and cardbh = ?"
      " and inMoney = ? and addmoney = ? and commerce = ? and bz = ? order by id desc",
      topUp.cardNumber, topUp.paid, topUp.credited, topUp.balance, topUp.remark);
  return rows.next() ? rows.whole("id") : std::nullopt;
}

std::int64_t TopUpBooks::writeRecord(const TopUp& topUp) {
  Transaction recording(connection_);
  const std::optional<std::int64_t> record = connection_.ExecuteInsert(
      "insert into cardStored([cardbh],[addmoney],[inMoney],[commerce],[bz]) values(" +
      quotedText(topUp.cardNumber) + "," + amount(topUp.credited) + " ," + amount(topUp.paid) +
      "  ," + amount(topUp.balance) + "  ," + quotedText(topUp.remark) + ")");
  Journal(connection_).note(EntryKind::kTopUpBegun, record.value(), [&] {
    return nlohmann::json{{"top_up", topUpRecord(connection_, record.value())}};
  });
  recording.commit();
  return record.value();
}

/// The record's balance becomes what is on the card, should another sale have used it meanwhile.
void TopUpBooks::load(const TopUp& topUp, std::int64_t record) {
  Transaction both(connection_);
  const std::int64_t cards =
      connection_.run("update member set card = round(card + ?, 4) where bh = ?",
                      topUp.balance - topUp.before, topUp.cardNumber);
  if (cards == 0) {
    throw StoreError(Words::tr("会员卡 %1 已不在数据文件中，余额没有保存！", topUp.cardNumber));
  }
  ensure(cards == 1, "a card's number is one member's");
  connection_.run(
      "update cardStored set complete = 1, shift = (select id from shift where closed is null),"
      " commerce = (select card from member where bh = cardbh)"
      " where id = ?",
      record);
  Journal(connection_).note(EntryKind::kTopUpLoaded, record, [&] {
    return nlohmann::json{
        {"top_up", topUpRecord(connection_, record)},
        {"card",
         {{"number", topUp.cardNumber}, {"by", generalNumber(topUp.balance - topUp.before)}}}};
  });
  both.commit();
}

std::optional<StoredCard> TopUpBooks::card(const std::string& typed) const {
  return findStoredCard(connection_, storedCardNumbers(typed));
}

CardResult TopUpBooks::store(const TopUp& topUp) {
  ensure(!connection_.inTransaction(), "the record is durable before the card is loaded");
  const std::optional<StoredCard> card = findStoredCard(connection_, {topUp.cardNumber});
  if (!card) return {};
  if (!card->isEnabled) return {CardOutcome::kBlocked, *card};
  CardResult result{CardOutcome::kDone, *card};
  result.card.balance += topUp.balance - topUp.before;
  const std::optional<std::int64_t> begun = begunRecord(topUp);
  load(topUp, begun ? *begun : writeRecord(topUp));
  return result;
}

std::vector<IncompleteTopUp> TopUpBooks::incomplete() const {
  std::vector<IncompleteTopUp> found;
  Rows rows = connection_.query("select * from cardStored where complete = 0 order by id");
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

void TopUpBooks::noteReported(const IncompleteTopUp& topUp) {
  connection_.run("update cardStored set reported = 1 where id = ?", topUp.id);
}
