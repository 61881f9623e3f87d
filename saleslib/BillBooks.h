#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "base/DateTime.h"
#include "saleslib/ClsMember.h"
#include "saleslib/ClsOperator.h"
#include "saleslib/ClsSell.h"
#include "saleslib/ClsStock.h"
#include "saleslib/Export.h"
#include "saleslib/GoodsLookup.h"
#include "saleslib/JournalKinds.h"
#include "saleslib/StoredCard.h"

class BillAuthority;
class CardAuthority;
class ClsDayStat;
class ClsSysParam;
class Connection;

/// The books behind a sale screen, kept by one cashier: bills, the stock that their lines take, and
/// what they are paid with. Each step is one transaction; a step that is refused or fails has
/// written nothing and left bill and line as they were. In a shop that keeps a journal, each step
/// that it tells of (saleslib/BillNotes.h) is noted in the same transaction. A refused movement of
/// stock is an outcome, a broken store throws StoreError.
class TESSALY_API BillBooks {
 public:
  /// Connection, rules and whoever decides about cards and about the bills of several tills outlive
  /// the books; without them the data file decides. There is a cashier (ensure).
  BillBooks(Connection& connection, const ClsSysParam& rules, Clock clock,
            std::shared_ptr<const ClsOperator> cashier, CardAuthority* cards = nullptr,
            BillAuthority* shop = nullptr);

  const ClsOperator& cashier() const { return *cashier_; }
  const ClsSysParam& rules() const { return rules_; }
  DateTime now() const { return clock_(); }
  /// The goods that lines are made of, at the shop's prices of now.
  GoodsLookup goods() const { return {connection_, rules_, clock_}; }

  // A bill and its lines

  /// A new empty bill of the cashier; none when the operator was removed.
  [[nodiscard]] std::shared_ptr<ClsSell> open();
  /// Takes the stock of a new line, under the shop's stock rule, and stores the line.
  [[nodiscard]] StockOutcome ring(ClsSellItem& line);
  /// Makes a stored line what `changed`, a copy of it, is by now; the stock follows.
  [[nodiscard]] StockOutcome correct(ClsSellItem& line, ClsSellItem changed);
  /// Puts the stock of a stored line back and deletes the line.
  [[nodiscard]] StockOutcome remove(ClsSellItem& line);
  /// Deletes the bill with its lines and `line`, stored but not yet in the bill, if there is one.
  /// Their stock goes back; what of it is refused is given, and keeps nothing from being deleted.
  [[nodiscard]] std::vector<StockOutcome> cancel(ClsSell& bill, ClsSellItem* line = nullptr);
  /// Stores a bill that is put aside, and opens the cashier's next one; none, and nothing is
  /// stored, when the operator was removed.
  [[nodiscard]] std::shared_ptr<ClsSell> hold(ClsSell& bill);
  /// Held bills stay until somebody takes them up, whatever becomes of the program: so in a shop of
  /// several tills. Without, they are the program's own, and cancelOpen cancels what is left.
  bool keepsHeld() const { return shop_ != nullptr; }
  /// The bills that this till keeps held, with their lines, whoever put them aside.
  std::vector<std::shared_ptr<ClsSell>> held() const;

  /// What the other tills of the shop hold, with their lines, to be looked at; nothing when nobody
  /// answers.
  std::vector<std::shared_ptr<ClsSell>> heldElsewhere() const;
  /// Whether that is because the server is away.
  bool isCutOff() const;
  struct Fetched {
    enum Kind { kHere, kGone, kAway, kUnreadable, kNoAnswer };
    Kind kind = kNoAnswer;
    std::shared_ptr<ClsSell> bill = {};  ///< of kHere: held by this till now, under a number of its
  };
  /// Has a bill of heldElsewhere handed over by the till that holds it.
  [[nodiscard]] Fetched fetchHeld(const ClsSell& elsewhere);

  struct Recalled {
    std::shared_ptr<ClsSell> bill;       ///< none: it is held no more, and nothing was done
    std::shared_ptr<ClsMember> member;   ///< of the bill, or none
    std::vector<double> stock;           ///< what each line left, in the order of the bill's lines
    std::vector<StockOutcome> refusals;  ///< of lines that left the bill
  };
  /// Takes a held bill up again in place of an empty one, which is deleted, as the cashier's own.
  /// Its stock goes back and is taken again line by line, under the shop's rule as it is now.
  /// `accept` is shown the bill before anything is durable, and refuses it by throwing. `held`
  /// stays as it is.
  [[nodiscard]] Recalled recall(const ClsSell& held, ClsSell& empty,
                                const std::function<void(const ClsSell&)>& accept);
  /// Deletes a bill without lines.
  void drop(ClsSell& empty);
  /// Cancels what an earlier run of the program left open of the cashier.
  [[nodiscard]] std::vector<StockOutcome> cancelOpen();

  // Payment

  /// The card of a typed or swiped number (see payingCardNumbers), blocked or not; none when there
  /// is none.
  std::optional<StoredCard> payingCard(const std::string& typed) const;
  /// Payment is taken for an open bill, which is stored with the mark of a paid one (see
  /// ClsSell::SavePaid), unless the shop sells in shifts and none is open. An empty text, or why it
  /// is not marked, for people.
  [[nodiscard]] std::string markPaid(ClsSell& bill);
  /// The same by the card that the bill names (CardNo), which pays all that is due, in fen
  /// (CardPay; ensure): the card is charged together with the mark. Nothing is paid unless it is
  /// done (saleslib/CardPayment.h).
  [[nodiscard]] CardResult payByCard(ClsSell& bill, const std::string& password);
  /// Stores a paid bill (ensure) as settled, and credits its member with purchase and points. False
  /// when the store failed: nothing was written, and the bill is as paid as it was. A member that
  /// is gone or cannot be credited costs points, not the sale.
  [[nodiscard]] bool settle(ClsSell& bill);

  struct PaidBill {
    std::shared_ptr<ClsSell> bill;
    bool isSettled = false;
    std::string fault = {};  ///< why it cannot be read, for people
  };
  /// Settles the bills, of all operators, whose payment was taken by an earlier run of the program
  /// that ended before it stored them. One that cannot be settled now waits for the next time.
  /// Charges of cards that it asked for and did not take are given up.
  std::vector<PaidBill> completePaid();

  // What was sold

  /// The shop's settled bill with the latest time, without lines; none when there is none.
  std::shared_ptr<ClsSell> lastSettled() const;
  /// The member's latest settled bill with its lines; none when there is none.
  std::shared_ptr<ClsSell> lastPurchase(const ClsMember& member) const;
  /// The cashier's settled bills of today.
  ClsDayStat today() const;
  /// A member as the books have it now; none without an id, or when the member is gone.
  std::shared_ptr<ClsMember> member(std::int32_t id) const;

  /// The data file's path, for messages.
  std::string file() const;
  /// An empty text, or why the open data file is no longer the one of its name (deleted, replaced,
  /// linked), for a message.
  std::string fileFault() const;

 private:
  StockOutcome take(const ClsSellItem& line, double quantity, std::int16_t rule);
  StockOutcome takeByRule(const ClsSellItem& line, double quantity);
  StockOutcome putBack(const ClsSellItem& line);
  std::shared_ptr<ClsSell> takenUp(const ClsSell& held);
  void takeAgain(Recalled& recalled);
  bool hasShift() const;
  bool settleAs(EntryKind kind, ClsSell& bill);
  Credit creditMember(const ClsSell& bill);

  Connection& connection_;
  const ClsSysParam& rules_;
  Clock clock_;
  std::shared_ptr<const ClsOperator> cashier_;
  CardAuthority* cards_;
  BillAuthority* shop_;
};
