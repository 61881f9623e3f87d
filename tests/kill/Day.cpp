#include "kill/Day.h"

#include <algorithm>
#include <iterator>
#include <stdexcept>

#include "base/NumberText.h"
#include "driver/TillDriver.h"

namespace {

constexpr std::size_t kLongestBill = 7;
constexpr std::size_t kMostHeld = 3;
constexpr std::int16_t kPointUnit = 10;  // the demo shop's

// Entries of the main menu and of the further menu, by position; both have five.
enum MainMenu { kSell, kCount, kPosSet, kEditPwd, kEnd };
enum FurtherMenu { kSearch, kUnSell };
constexpr int kMenuEntries = 5;

Currency yuan(std::int64_t whole) {
  return Currency::fromYuan(whole);
}

void addStock(Ledger& ledger, const Ledger::Line& line, double quantity) {
  double& stock = ledger.stock[line.item];
  stock = roundedQuantity(stock + roundedQuantity(quantity * line.ratio));
}

}  // namespace

Day::Day(Journal& journal, Goods goods, unsigned seed, std::function<void()> aboutToConfirm)
    : journal_(journal),
      goods_(std::move(goods)),
      random_(seed),
      aboutToConfirm_(std::move(aboutToConfirm)) {}

unsigned Day::below(unsigned limit) {
  return static_cast<unsigned>(random_() % limit);
}

const std::string& Day::anyCard() {
  return std::next(goods_.cards().begin(), below(static_cast<unsigned>(goods_.cards().size())))
      ->first;
}

/// The highlight of a menu stays where it was.
void Day::choose(TillDriver& till, int& highlight, int entry) {
  for (; highlight != entry; highlight = (highlight + 1) % kMenuEntries) till.key("Down");
  till.key("Return");
}

void Day::logIn(TillDriver& till) {
  mainEntry_ = kSell;
  furtherEntry_ = kSearch;
  held_.clear();
  till.waitFor("frmMenu");
  till.key("Return");
  till.waitFor("frmLogin");
  till.enter("1");
  till.enter("111");
  till.sync();
  if (till.activeWindow() == "frmMsg") {
    told_ += till.text("Label1");
    till.key("Return");
  }
  till.waitFor("frmSell");
  newBill(till);
}

// A bill's number is never used twice, not even that of a bill that was voided.
void Day::newBill(TillDriver& till) {
  bill_ = {};
  const std::string title = till.text("title1");
  const std::string caption = "流水号：";
  const std::size_t at = title.find(caption);
  if (at == std::string::npos) throw std::runtime_error("no bill number in: " + title);
  bill_.number = std::stoi(title.substr(at + caption.size()));
  if (bill_.number <= highestNumber_) throw std::runtime_error("used again: " + title);
  highestNumber_ = bill_.number;
}

void Day::step(TillDriver& till) {
  if (bill_.lines.empty()) {
    if (!held_.empty() && chance(40)) return recall(till);
    if (held_.empty() && !journal_.confirmed().bills.empty() && chance(8)) return takeBack(till);
    if (bill_.member.empty() && chance(25)) return attachMember(till);
    if (chance(6)) return topUp(till);
    return ring(till);
  }
  if (bill_.hasCurrentLine) {
    if (chance(14)) return changeQuantity(till);
    if (chance(8)) return changeDiscount(till);
    if (chance(8)) return deleteLine(till);
  }
  if (chance(3)) return cancel(till);
  if (held_.size() < kMostHeld && chance(5)) return suspend(till);
  if (chance(3)) return topUp(till);
  if (bill_.lines.size() == kLongestBill || chance(25)) return settle(till);
  ring(till);
}

void Day::attachMember(TillDriver& till) {
  bill_.member = anyCard();
  till.key("F2");
  till.waitFor("frmInput");
  till.enter(bill_.member);
  till.waitFor("frmSell");
}

void Day::ring(TillDriver& till) {
  const auto item = below(static_cast<unsigned>(goods_.count()));
  bill_.lines.push_back(goods_.line(item, bill_.member));
  bill_.hasCurrentLine = true;
  till.enter(bill_.lines.back().code);
}

void Day::changeQuantity(TillDriver& till) {
  const double quantity = (1 + below(12)) / 4.0;
  bill_.lines.back().quantity = quantity;
  till.key("Up");
  till.enter(generalNumber(quantity));
}

void Day::changeDiscount(TillDriver& till) {
  const Discount discount((80 + below(20)) / 100.0);
  bill_.lines.back().discount = discount;
  till.key("Up");
  till.key("Right");
  till.enter(generalNumber(discount));
}

void Day::deleteLine(TillDriver& till) {
  till.key("F4");
  bill_.lines.pop_back();
  bill_.hasCurrentLine = false;
}

void Day::cancel(TillDriver& till) {
  till.key("F12");
  till.sync();
  newBill(till);
}

void Day::suspend(TillDriver& till) {
  till.key("F5");
  till.sync();
  held_.push_back(bill_);
  held_.back().hasCurrentLine = false;
  newBill(till);
}

void Day::recall(TillDriver& till) {
  const auto chosen = below(static_cast<unsigned>(held_.size()));
  till.key("F6");
  till.waitFor("frmRecord");
  for (unsigned row = 0; row < chosen; ++row) till.key("Down");
  till.key("Return");
  till.waitFor("frmSell");
  bill_ = held_[chosen];
  held_.erase(held_.begin() + chosen);
}

Ledger::Bill Day::figures() const {
  Ledger::Bill bill;
  bill.member = bill_.member;
  bill.lines = bill_.lines;
  bill.amount = bill.goodsAmount();
  return bill;
}

Journal::Step Day::settling(const Ledger::Bill& bill) const {
  return [bill, number = bill_.number](Ledger& ledger) {
    ledger.bills[number] = bill;
    for (const Ledger::Line& line : bill.lines) addStock(ledger, line, -line.quantity);
    if (!bill.card.empty()) ledger.members[bill.card].balance -= bill.cardPay;
    if (bill.member.empty()) return;
    Ledger::Member& member = ledger.members[bill.member];
    member.totalSpent += bill.amount;
    const auto points =
        pointsAfter(bill.amount, kPointUnit, static_cast<std::int16_t>(member.points));
    if (points) member.points = *points;
  };
}

void Day::confirming(const std::string& what, Journal::Step step, Journal::Step halfway,
                     TillDriver& till) {
  journal_.begin(what, std::move(step), std::move(halfway));
  aboutToConfirm_();
  till.key("Return");
}

void Day::settle(TillDriver& till) {
  till.key("F1");
  till.waitFor("frmEndSell");
  till.waitForText("Money", twoDecimals(figures().amount));
  const Currency most = journal_.confirmed().members.at(anyCard()).balance;
  settledBill_ = bill_.number;
  chance(35) && most > figures().amount ? payCard(till) : payCash(till);
  till.waitFor("frmSell");
  newBill(till);
}

void Day::payCash(TillDriver& till) {
  Ledger::Bill bill = figures();
  if (chance(30)) {
    bill.favorable = Currency::fromScaled(below(100) * 100);
    bill.salesman = static_cast<int>(below(9));
    bill.bankCard = yuan(below(20));
    till.key("Tab");
    till.type(generalNumber(bill.favorable));
    till.key("Tab");
    till.type(std::to_string(bill.salesman));
    till.key("Tab");
    till.type(generalNumber(bill.bankCard));
    till.key("Return");
  }
  bill.cash = bill.amount + yuan(below(50));
  till.type(generalNumber(bill.cash));
  confirming("bill " + std::to_string(bill_.number) + " paid in cash", settling(bill), nullptr,
             till);
  till.waitFor("frmSell");
  journal_.confirm();
}

void Day::payCard(TillDriver& till) {
  Ledger::Bill bill = figures();
  const auto& members = journal_.confirmed().members;
  const auto rich =
      std::find_if(goods_.cards().begin(), goods_.cards().end(),
                   [&](const auto& card) { return members.at(card.first).balance >= bill.amount; });
  bill.card = rich->first;
  bill.cardPay = bill.amount;
  for (int field = 0; field < 4; ++field) till.key("Tab");
  till.enter(bill.card);
  till.type(rich->second.password);
  confirming("bill " + std::to_string(bill_.number) + " paid by card " + bill.card, settling(bill),
             nullptr, till);
  till.waitFor("messageBox");
  journal_.confirm();
  till.key("Return");
}

// Record and balance are two writes, one after the other.
void Day::topUp(TillDriver& till) {
  Ledger::TopUp topUp;
  topUp.card = anyCard();
  topUp.paid = yuan(50 + below(100));
  topUp.credited = topUp.paid + yuan(below(20));
  topUp.balance = journal_.confirmed().members.at(topUp.card).balance + topUp.credited;
  till.key("F9");
  till.waitFor("cardStored");
  till.enter(topUp.card);
  till.enter(generalNumber(topUp.paid));
  till.enter(generalNumber(topUp.credited));
  till.tabTo("cmdOk2");
  const auto record = [topUp](Ledger& ledger) {
    ledger.topUps.push_back(topUp);
    ledger.topUps.back().isComplete = false;
  };
  const auto both = [topUp](Ledger& ledger) {
    ledger.topUps.push_back(topUp);
    ledger.members[topUp.card].balance = topUp.balance;
  };
  confirming("top-up of card " + topUp.card, both, record, till);
  till.waitFor("messageBox");
  journal_.confirm();
  till.key("Return");
  till.waitFor("frmSell");
}

void Day::takeBack(TillDriver& till) {
  till.key("Esc");
  till.waitFor("frmMenu");
  mainEntry_ = kSell;
  till.key("Menu");
  till.sync();
  choose(till, furtherEntry_, kUnSell);
  till.waitFor("frmUnSell");
  takeBackLine(till);
  till.key("Esc");
  till.waitFor("frmMenu");
  choose(till, mainEntry_, kSell);
  till.waitFor("frmSell");
  newBill(till);
}

void Day::takeBackLine(TillDriver& till) {
  const auto& bills = journal_.confirmed().bills;
  const auto recent = std::min<unsigned>(20, static_cast<unsigned>(bills.size()));
  const auto chosen = std::prev(bills.end(), 1 + below(recent));
  const auto line = std::find_if(chosen->second.lines.begin(), chosen->second.lines.end(),
                                 [](const Ledger::Line& each) { return each.quantity > 0; });
  if (line == chosen->second.lines.end()) return;
  Ledger::Line gone = *line;
  if (chance(50)) gone.quantity = std::min(gone.quantity, 0.5);
  const Ledger::Return record{chosen->first, gone.item, gone.quantity, gone.money()};
  const auto position = line - chosen->second.lines.begin();

  till.enter(std::to_string(record.bill));
  till.enter(gone.code);
  till.enter(generalNumber(gone.quantity));
  till.sync();
  confirming(
      "return on bill " + std::to_string(record.bill),
      [record, gone, position](Ledger& ledger) {
        ledger.returns.push_back(record);
        addStock(ledger, gone, gone.quantity);
        Ledger::Bill& bill = ledger.bills.at(record.bill);
        double& left = bill.lines[static_cast<std::size_t>(position)].quantity;
        left = roundedQuantity(left - gone.quantity);
        bill.amount = bill.goodsAmount();
        if (!bill.member.empty()) ledger.members[bill.member].totalSpent -= record.money;
      },
      nullptr, till);
  till.sync();
  till.waitFor("frmUnSell");
  journal_.confirm();
}

void Day::close(TillDriver& till) {
  while (!held_.empty() || !bill_.lines.empty()) {
    bill_.lines.empty() ? recall(till) : cancel(till);
  }
  till.key("Esc");
  till.waitFor("frmMenu");
  mainEntry_ = kSell;
  choose(till, mainEntry_, kEnd);
  if (till.waitForEnd() != 0) throw std::runtime_error("the till did not end cleanly");
}
