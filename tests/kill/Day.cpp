#include "kill/Day.h"

#include <algorithm>
#include <stdexcept>
#include <tuple>

#include "base/NumberText.h"
#include "driver/TillDriver.h"

namespace {

constexpr std::size_t kLongestBill = 7;
constexpr std::size_t kMostHeld = 3;
constexpr std::int16_t kPointUnit = 10;  // the demo shop's

// Entries of the main menu and of the further menu, by position; both have five.
enum MainMenu { kSell, kEnd = 4 };
enum FurtherMenu { kSearch, kUnSell };
constexpr int kMenuEntries = 5;

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

const std::string& Day::anyCard() {
  return std::next(goods_.cards().begin(), below(goods_.cards().size()))->first;
}

void Day::go(const char* key, const char* window) {
  till_->key(key);
  till_->waitFor(window);
}

/// The highlight of a menu stays where it was.
void Day::choose(int& highlight, int entry, const char* window) {
  for (; highlight != entry; highlight = (highlight + 1) % kMenuEntries) till_->key("Down");
  go("Return", window);
}

void Day::confirm(const std::string& what, const char* window, Journal::Step step,
                  Journal::Step halfway) {
  journal_.begin(what, std::move(step), std::move(halfway));
  aboutToConfirm_();
  till_->key("Return");
  till_->sync();
  till_->waitFor(window);
  journal_.confirm();
}

void Day::logIn(TillDriver& till) {
  till_ = &till;
  mainEntry_ = kSell;
  furtherEntry_ = kSearch;
  held_.clear();
  till.waitFor("frmMenu");
  go("Return", "frmLogin");
  till.enter("1");
  till.enter("111");
  till.sync();
  if (till.activeWindow() == "frmMsg") {
    told_ += till.text("Label1");
    till.key("Return");
  }
  till.waitFor("frmSell");
  newBill();
}

// A bill's number is never used twice, not even that of a bill that was voided.
void Day::newBill() {
  bill_ = {};
  hasCurrentLine_ = false;
  const std::string title = till_->text("title1"), caption = "流水号：";
  const std::size_t at = title.find(caption);
  if (at == std::string::npos) throw std::runtime_error("no bill number in: " + title);
  number_ = std::stoi(title.substr(at + caption.size()));
  if (number_ <= highestNumber_) throw std::runtime_error("used again: " + title);
  highestNumber_ = number_;
}

void Day::step() {
  if (bill_.lines.empty()) return beginBill();
  if (hasCurrentLine_ && chance(27)) return correct();
  if (chance(3)) return cancel();
  if (held_.size() < kMostHeld && chance(5)) return suspend();
  if (chance(3)) return topUp();
  bill_.lines.size() == kLongestBill || chance(25) ? settle() : ring();
}

void Day::beginBill() {
  if (!held_.empty() && chance(40)) return recall();
  if (held_.empty() && !journal_.confirmed().bills.empty() && chance(8)) return takeBack();
  if (bill_.member.empty() && chance(25)) return attachMember();
  chance(6) ? topUp() : ring();
}

void Day::attachMember() {
  bill_.member = anyCard();
  go("F2", "frmInput");
  till_->enter(bill_.member);
  till_->waitFor("frmSell");
}

void Day::ring() {
  bill_.lines.push_back(goods_.line(below(goods_.count()), bill_.member));
  hasCurrentLine_ = true;
  till_->enter(bill_.lines.back().code);
}

void Day::correct() {
  Ledger::Line& line = bill_.lines.back();
  const unsigned what = below(4);
  if (what == 0) {
    till_->key("F4");
    bill_.lines.pop_back();
    hasCurrentLine_ = false;
    return;
  }
  till_->key("Up");
  if (what == 1) {
    till_->key("Right");
    line.discount = Discount((80 + below(20)) / 100.0);
    return till_->enter(generalNumber(line.discount));
  }
  line.quantity = (1 + below(12)) / 4.0;
  till_->enter(generalNumber(line.quantity));
}

void Day::cancel() {
  till_->key("F12");
  till_->sync();
  newBill();
}

void Day::suspend() {
  held_.emplace_back(number_, bill_);
  till_->key("F5");
  till_->sync();
  newBill();
}

void Day::recall() {
  const auto chosen = held_.begin() + below(held_.size());
  go("F6", "frmRecord");
  for (auto row = held_.begin(); row != chosen; ++row) till_->key("Down");
  go("Return", "frmSell");
  std::tie(number_, bill_) = *chosen;
  held_.erase(chosen);
}

void Day::settle() {
  Ledger::Bill bill = bill_;
  bill.amount = bill.goodsAmount();
  go("F1", "frmEndSell");
  till_->waitForText("Money", twoDecimals(bill.amount));
  settledBill_ = number_;
  const std::string name = "bill " + std::to_string(number_);
  if (chance(35) && typeCard(bill)) {
    confirm(name + " paid by card " + bill.card, "messageBox", settling(bill));
    till_->key("Return");
  } else {
    typeTenders(bill);
    confirm(name + " paid in cash", "frmSell", settling(bill));
  }
  till_->waitFor("frmSell");
  newBill();
}

// In the order of the Tab key.
void Day::typeTenders(Ledger::Bill& bill) {
  bill.paidWith(Tender::kCash) = bill.amount + Currency::fromYuan(below(50));
  if (chance(50)) {
    bill.paidWith(Tender::kFavorable) = Currency::fromScaled(below(100) * 100);
    bill.salesman = static_cast<int>(below(9));
    bill.paidWith(Tender::kBankCard) = Currency::fromYuan(below(20));
    std::string phone = "0";
    if (chance(50)) {
      bill.slip = "28A" + std::to_string(number_);
      phone = generalNumber(bill.paidWith(Tender::kPhone) = bill.amount);
      bill.paidWith(Tender::kCash) = {};
    }
    for (const std::string& text :
         {generalNumber(bill.paidWith(Tender::kFavorable)), std::to_string(bill.salesman),
          generalNumber(bill.paidWith(Tender::kBankCard)), phone, bill.slip}) {
      till_->key("Tab");
      till_->type(text);
    }
    till_->key("Return");
  }
  till_->type(generalNumber(bill.paidWith(Tender::kCash)));
}

/// False when no card has enough.
bool Day::typeCard(Ledger::Bill& bill) {
  const auto rich = std::ranges::find_if(goods_.cards(), [&](const auto& card) {
    return journal_.confirmed().members.at(card.first).balance >= bill.amount;
  });
  if (rich == goods_.cards().end()) return false;
  bill.card = rich->first;
  bill.paidWith(Tender::kStoredCard) = bill.amount;
  till_->tabTo("czk");
  till_->enter(bill.card);
  till_->type(rich->second.password);
  return true;
}

Journal::Step Day::settling(const Ledger::Bill& bill) const {
  return [bill, number = number_](Ledger& ledger) {
    ledger.bills[number] = bill;
    for (const Ledger::Line& line : bill.lines) addStock(ledger, line, -line.quantity);
    if (!bill.card.empty()) ledger.members[bill.card].balance -= bill.amount;
    if (bill.member.empty()) return;
    Ledger::Member& member = ledger.members[bill.member];
    member.totalSpent += bill.amount;
    const auto points = static_cast<std::int16_t>(member.points);
    member.points = pointsAfter(bill.amount, kPointUnit, points).value_or(points);
  };
}

// Record and balance are two writes, one after the other.
void Day::topUp() {
  Ledger::TopUp topUp;
  topUp.card = anyCard();
  topUp.paid = Currency::fromYuan(50 + below(100));
  topUp.credited = topUp.paid + Currency::fromYuan(below(20));
  topUp.balance = journal_.confirmed().members.at(topUp.card).balance + topUp.credited;
  go("F9", "cardStored");
  till_->enter(topUp.card);
  till_->enter(generalNumber(topUp.paid));
  till_->enter(generalNumber(topUp.credited));
  till_->tabTo("cmdOk2");
  const auto record = [topUp](Ledger& ledger) {
    ledger.topUps.push_back(topUp);
    ledger.topUps.back().isComplete = false;
  };
  const auto both = [topUp](Ledger& ledger) {
    ledger.topUps.push_back(topUp);
    ledger.members[topUp.card].balance = topUp.balance;
  };
  confirm("top-up of card " + topUp.card, "messageBox", both, record);
  go("Return", "frmSell");
}

void Day::takeBack() {
  go("Esc", "frmMenu");
  mainEntry_ = kSell;
  till_->key("Menu");
  till_->sync();
  choose(furtherEntry_, kUnSell, "frmUnSell");
  const auto& bills = journal_.confirmed().bills;
  const auto chosen = std::prev(bills.end(), 1 + below(std::min<std::size_t>(20, bills.size())));
  takeBackLineOf(chosen->first, chosen->second);
  go("Esc", "frmMenu");
  choose(mainEntry_, kSell, "frmSell");
  newBill();
}

void Day::takeBackLineOf(int number, const Ledger::Bill& bill) {
  const auto line = std::ranges::find_if(bill.lines, [](auto& each) { return each.quantity > 0; });
  if (line == bill.lines.end()) return;
  Ledger::Line gone = *line;
  if (chance(50)) gone.quantity = std::min(gone.quantity, 0.5);
  till_->enter(std::to_string(number));
  till_->enter(gone.code);
  till_->enter(generalNumber(gone.quantity));
  till_->sync();
  const auto taken = [number, gone, position = line - bill.lines.begin()](Ledger& ledger) {
    ledger.returns.push_back({number, gone.item, gone.quantity, gone.money()});
    addStock(ledger, gone, gone.quantity);
    Ledger::Bill& left = ledger.bills.at(number);
    double& quantity = left.lines.at(static_cast<std::size_t>(position)).quantity;
    quantity = roundedQuantity(quantity - gone.quantity);
    left.amount = left.goodsAmount();
    if (!left.member.empty()) ledger.members[left.member].totalSpent -= gone.money();
  };
  confirm("return on bill " + std::to_string(number), "frmUnSell", taken);
}

void Day::close() {
  while (!held_.empty() || !bill_.lines.empty()) bill_.lines.empty() ? recall() : cancel();
  go("Esc", "frmMenu");
  mainEntry_ = kSell;
  for (int entry = kSell; entry != kEnd; ++entry) till_->key("Down");
  till_->key("Return");
  if (till_->waitForEnd() != 0) throw std::runtime_error("the till did not end cleanly");
}
