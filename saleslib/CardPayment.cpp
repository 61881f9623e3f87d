#include "saleslib/CardPayment.h"

#include <vector>

#include "base/Failure.h"
#include "saleslib/BillNotes.h"
#include "saleslib/ClsSell.h"
#include "saleslib/Fields.h"
#include "saleslib/Sodium.h"
#include "store/Connection.h"
#include "store/StoreError.h"
#include "store/Transaction.h"

namespace {

using Charge = CardAuthority::Charge;
using Answer = CardAuthority::Answer;

// By chance, not by counting: a file that was put back from a copy would count over again, and take
// the answer to an old charge for that to a new one.
std::string newKey() {
  return randomDigits(16);
}

void savePaid(ClsSell& bill) {
  if (!bill.SavePaid()) throw StoreError(bill.ErrText());
}

}  // namespace

CardResult CardPayment::pay(ClsSell& bill, const std::string& password) {
  if (shop_ == nullptr) return payHere(bill, password);
  const CardResult proven = provenCard(connection_, bill.CardNo(), password);
  return proven.outcome == CardOutcome::kDone ? payAtShop(bill, proven.card) : proven;
}

CardResult CardPayment::payHere(ClsSell& bill, const std::string& password) {
  Transaction paying(connection_);
  CardResult result = chargeCard(connection_, bill.CardNo(), password, bill.CardPay());
  if (result.outcome != CardOutcome::kDone) return result;
  savePaid(bill);
  BillNotes(connection_).charged(bill);
  paying.commit();
  return result;
}

CardResult CardPayment::payAtShop(ClsSell& bill, const StoredCard& card) {
  const Charge charge{newKey(), bill.BillNo(), bill.CardNo(), bill.CardPay()};
  ensure(charge.amount >= Currency(), "a charge loads no card");
  if (shop_->isAway() && !mayGoUnanswered(charge, card)) return {CardOutcome::kNoAnswer, card};
  prepare(charge);
  ensure(!connection_.inTransaction(), "a question is durable before it goes out");
  try {
    return follow(bill, charge, shop_->charge(charge), card);
  } catch (const Failure&) {
    try {
      giveUp(charge);
    } catch (const Failure&) {
      // the next start gives it up
    }
    throw;
  }
}

CardResult CardPayment::follow(ClsSell& bill, const Charge& charge, const Answer& answer,
                               const StoredCard& card) {
  CardResult result{CardOutcome::kDone, card};
  switch (answer.kind) {
    case Answer::kDone:
      take(bill, charge, true);
      result.card.balance = answer.balance;
      return result;
    case Answer::kTooLittle:
      refuse(charge);
      return {CardOutcome::kTooLittle, card};
    case Answer::kUnknownCard:
      refuse(charge);
      return {};
    case Answer::kNone:
      break;
  }
  if (!mayGoUnanswered(charge, card)) {
    giveUp(charge);
    return {CardOutcome::kNoAnswer, card};
  }
  take(bill, charge, false);
  result.card.balance -= charge.amount;
  return result;
}

void CardPayment::prepare(const Charge& charge) {
  Transaction preparing(connection_);
  connection_.run("insert into card_pending (key, sell_id, card_no, amount) values (?, ?, ?, ?)",
                  charge.key, charge.bill, charge.card, charge.amount);
  preparing.commit();
}

void CardPayment::take(ClsSell& bill, const Charge& charge, bool isAnswered) {
  Transaction paying(connection_);
  followCharge(connection_, charge.card, charge.amount);
  savePaid(bill);
  BillNotes(connection_).charged(bill, charge.key);
  forget(charge);
  if (isAnswered) {
    connection_.run("delete from card_offline");
  } else if (connection_.run(
                 "update card_offline set amount = round(amount + ?, 4) where card_no = ?",
                 charge.amount, charge.card) == 0) {
    connection_.run("insert into card_offline (card_no, amount) values (?, ?)", charge.card,
                    charge.amount);
  }
  paying.commit();
}

// The charge keeps its key: had the server done it all the same, the settled bill only proves it.
bool CardPayment::mayGoUnanswered(const Charge& charge, const StoredCard& card) {
  Rows row = connection_.query("select amount from card_offline where card_no = ?", charge.card);
  const Currency before = row.next() ? money(row, "amount") : Currency();
  return limit_ > Currency() && before + charge.amount <= limit_ && charge.amount <= card.balance;
}

void CardPayment::refuse(const Charge& charge) {
  Transaction refusing(connection_);
  forget(charge);
  connection_.run("delete from card_offline");
  refusing.commit();
}

void CardPayment::giveUp(const Charge& charge) {
  Transaction givingUp(connection_);
  BillNotes(connection_).chargeVoided(charge);
  forget(charge);
  givingUp.commit();
}

void CardPayment::forget(const Charge& charge) {
  ensure(connection_.run("delete from card_pending where key = ?", charge.key) == 1,
         "a charge is taken or given up once");
}

// Only one program sells on a data file: what is there is nobody's any more.
void CardPayment::giveUpUnpaid() {
  if (shop_ == nullptr) return;
  std::vector<Charge> left;
  for (Rows rows = connection_.query("select * from card_pending"); rows.next();) {
    left.push_back({rows.text("key"), rows.whole("sell_id").value_or(0), rows.text("card_no"),
                    money(rows, "amount")});
  }
  for (const Charge& charge : left) giveUp(charge);
}
