#include <optional>
#include <string>

#include "base/Currency.h"
#include "base/Failure.h"
#include "base/NumberText.h"
#include "base/Words.h"
#include "saleslib/ClsMember.h"
#include "saleslib/ShopLink.h"
#include "store/Connection.h"
#include "tools/Examination.h"

namespace {

// Reads each member as the till does.
void examineRecords(const Examination& books) {
  Rows rows = books.connection.query("select * from member order by id");
  while (rows.next()) {
    const std::string name = Words::tr("会员 %1", rows.text("bh"));
    try {
      static_cast<void>(ClsMember::fromRow(books.connection, rows));
      if (rows.currency("card").value_or(Currency()) < Currency()) {
        books.fault(Words::tr("储值卡 %1 的余额是负的：%2", rows.text("bh"), rows.text("card")));
      }
      if (rows.dateTime("join_date") > books.now) {
        books.fault(Words::tr("%1 的加入时间 %2 还没有到", name, rows.text("join_date")));
      }
    } catch (const Failure& unreadable) {
      books.fault(Words::tr("%1 读不出来：%2", name, unreadable.what()));
    }
  }
}

void examineNames(const Examination& books) {
  Rows members = books.connection.query(
      "select id, member_id from sell where member_id <> 0"
      " and not exists (select 1 from member where member.id = member_id) order by id");
  while (members.next()) {
    books.fault(Words::tr("单据 %1 的会员（内部号 %2）不存在", members.text("id"),
                          members.text("member_id")));
  }
  Rows cards = books.connection.query(
      "select id, card_no from sell where card_no <> ''"
      " and not exists (select 1 from member where bh = card_no) order by id");
  while (cards.next()) {
    books.fault(Words::tr("单据 %1 的储值卡 %2 不存在", cards.text("id"), cards.text("card_no")));
  }
  Rows topUps = books.connection.query(
      "select id, cardbh from cardStored"
      " where not exists (select 1 from member where bh = cardbh) order by id");
  while (topUps.next()) {
    books.fault(Words::tr("充值 %1 的储值卡 %2 不存在", topUps.text("id"), topUps.text("cardbh")));
  }
}

// Goods taken back lower what a bill came to, and the purchases by a refund that the cashier names;
// what a rounded bill loses with its last goods is at most half a yuan and a jiao.
void examinePurchases(const Examination& books) {
  Rows rows = books.connection.query(
      "select m.bh as bh, m.total_spent as total, round(b.bought + coalesce(r.back, 0), 2) as least"
      " from (select id, bh, round(total_spent - coalesce((select amount from down_others"
      "  where tbl = 'spent' and key = bh), 0), 4) as total_spent from member) m"
      " join (select member_id, sum(amount) as bought from sell where state = 1 and member_id <> 0"
      "  group by member_id) b on b.member_id = m.id"
      " left join (select s.member_id as member_id, count(*) as count,"
      "  sum(round(l.price * u.quantity * l.discount, 2) - u.money) as back from un_sell u"
      "  join sellProducts l on l.id = u.item_id join sell s on s.id = l.sellId"
      "  group by s.member_id) r on r.member_id = m.id"
      " where round(b.bought + coalesce(r.back, 0) - m.total_spent, 2) >"
      " 0.6 * coalesce(r.count, 0)");
  while (rows.next()) {
    books.fault(Words::tr(
        "会员 %1 的累计消费是 %2，少于已结单据减去退款的合计 %3（导入时没有改小过，就是漏记）",
        rows.text("bh"), rows.text("total"), rows.text("least")));
  }
}

/// What is on each card that was topped up, what its last top-up left on it, and all it ever paid.
constexpr const char* kBalances =
    "select m.bh as bh, m.card as balance, t.commerce as topped, p.paid as paid"
    " from (select max(id) as id from cardStored where complete = 1 group by cardbh) last"
    " join cardStored t on t.id = last.id join member m on m.bh = t.cardbh"
    " left join (select card_no, sum(card_pay) as paid from sell where card_no <> ''"
    "  group by card_no) p on p.card_no = m.bh order by m.bh";
/// The top-ups of each card one after the other, each with all that the card ever paid.
constexpr const char* kTopUps =
    "select t.*, p.paid as paid from cardStored t"
    " left join (select card_no, sum(card_pay) as paid from sell where card_no <> ''"
    "  group by card_no) p on p.card_no = t.cardbh where t.complete = 1 order by t.cardbh, t.id";

// Since its last top-up a card can only have paid: where it began is not known, this is.
void examineBalances(const Examination& books) {
  Rows rows = books.connection.query(kBalances);
  while (rows.next()) {
    const std::string card = Words::tr("储值卡 %1", rows.text("bh"));
    try {
      const Currency balance = rows.currency("balance").value_or(Currency());
      const Currency topped = rows.currency("topped").value_or(Currency());
      const Currency paid = rows.currency("paid").value_or(Currency());
      const std::string figures = Words::tr("%1 的余额是 %2，最后一次充值后是 %3", card,
                                            twoDecimals(balance), twoDecimals(topped));
      if (balance > topped) {
        books.fault(Words::tr("%1：多出来的钱没有充值记录", figures));
      } else if (topped - balance > paid) {
        books.fault(
            Words::tr("%1，所有单据加起来只付过 %2：少了的钱没有单据", figures, twoDecimals(paid)));
      }
    } catch (const Failure& unreadable) {
      books.fault(Words::tr("%1 的金额读不出来：%2", card, unreadable.what()));
    }
  }
}

// The balance that a top-up leaves was worked out before it was confirmed: the amount may have been
// changed after that.
void examineTopUps(const Examination& books) {
  Rows rows = books.connection.query(kTopUps);
  std::string card;
  Currency before;
  while (rows.next()) {
    const std::string name = Words::tr("储值卡 %1 的充值 %2", rows.text("cardbh"), rows.text("id"));
    try {
      const Currency credited = rows.currency("addmoney").value_or(Currency());
      const Currency after = rows.currency("commerce").value_or(Currency());
      if (rows.currency("inMoney").value_or(Currency()) < Currency()) {
        books.fault(Words::tr("%1 的付款金额是负的：%2", name, rows.text("inMoney")));
      }
      if (rows.text("cardbh") != card) before = after - credited;
      const Currency spent = before + credited - after;  // since the top-up before
      if (before < Currency() || spent < Currency() ||
          spent > rows.currency("paid").value_or(Currency())) {
        books.remark(Words::tr("%1：充值 %2 之后的余额是 %3，与前一次充值的对不上", name,
                               twoDecimals(credited), twoDecimals(after)));
      }
      before = after;
    } catch (const Failure& unreadable) {
      books.fault(Words::tr("%1 的金额读不出来：%2", name, unreadable.what()));
    }
    card = rows.text("cardbh");
  }
}

}  // namespace

void examineMembers(const Examination& books) {
  examineRecords(books);
  examineNames(books);
  examinePurchases(books);
  if (shopLink(books.connection)) return;  // other tills load and charge its cards, too
  examineBalances(books);
  examineTopUps(books);
}
