#include "kill/Day.h"

#include <algorithm>
#include <stdexcept>
#include <tuple>

#include "driver/TillDriver.h"

constexpr std::size_t kLongestBill = 7;
constexpr std::size_t kMostHeld = 3;
constexpr std::int16_t kPointUnit = 10;  // the demo shop's
// Places in the further menu.
constexpr int kReturns = 1, kFurtherEntries = 9;

namespace {

// What is left of a bill in the drawer, behind the name that the ledger has for it.
std::string inShift(const std::string& name, const Ledger& ledger) {
  return name + " in shift " + std::to_string(ledger.shifts);
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

void Day::play(const std::string& script) {
  till_->play(script);
}

void Day::confirm(const std::string& what, const std::string& window, Journal::Step step,
                  Journal::Step halfway) {
  journal_.begin(what, std::move(step), std::move(halfway));
  aboutToConfirm_();
  play("Return >" + window);
  journal_.confirm();
}

bool Day::logIn(TillDriver& till) {
  till_ = &till;
  furtherAt_ = 0;
  held_.clear();
  play(">frmMenu Return >frmLogin =1 =111");
  if (till.activeWindow() == "dlgCash") return false;
  if (till.activeWindow() == "frmMsg") {
    told_ += till.text("Label1");
    till.key("Return");
  }
  till.waitFor("frmSell");
  newBill();
  return true;
}

std::string Day::toFurther(int entry) {
  std::string keys = "Esc >frmMenu Menu ";
  for (; furtherAt_ != entry; furtherAt_ = (furtherAt_ + 1) % kFurtherEntries) keys += "Down ";
  return keys + "Return ";
}

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
  if (chance(3)) return leaveBill("F12");
  if (held_.size() < kMostHeld && chance(5)) {
    held_.emplace_back(number_, bill_);
    return leaveBill("F5");
  }
  if (chance(3)) return topUp();
  bill_.lines.size() == kLongestBill || chance(25) ? settle() : ring();
}

void Day::beginBill() {
  if (!held_.empty() && chance(40)) return recall();
  if (held_.empty() && !journal_.confirmed().bills.empty() && chance(8)) return takeBack();
  if (held_.empty() && chance(5)) return closeShift();
  if (bill_.member.empty() && chance(25)) {
    bill_.member = anyCard();
    return play("F2 >frmInput =" + bill_.member + " >frmSell");
  }
  chance(6) ? topUp() : ring();
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
    bill_.lines.pop_back();
    hasCurrentLine_ = false;
    return play("F4");
  }
  if (what == 1) {
    line.discount = Discount((80 + below(20)) / 100.0);
    return play("Up Right =" + generalNumber(line.discount));
  }
  line.quantity = (1 + below(12)) / 4.0;
  play("Up =" + generalNumber(line.quantity));
}

void Day::leaveBill(const char* key) {
  play(key);
  newBill();
}

void Day::recall() {
  const auto chosen = held_.begin() + below(held_.size());
  play("F6 >frmRecord");
  for (auto row = held_.begin(); row != chosen; ++row) till_->key("Down");
  play("Return >frmSell");
  std::tie(number_, bill_) = *chosen;
  held_.erase(chosen);
}

void Day::settle() {
  Ledger::Bill bill = bill_;
  play("F1 >frmEndSell");
  till_->waitForText("Money", twoDecimals(bill.goodsAmount()));
  settledBill_ = "流水号 " + std::to_string(number_) + "，";
  const std::string name = "bill " + std::to_string(number_);
  if (chance(35) && typeCard(bill)) {
    confirm(name + " paid by card " + bill.card, "messageBox", settling(bill));
    till_->key("Return");
  } else {
    typeTenders(bill);
    confirm(name + (bill.slip.empty() ? " paid in cash" : " paid by telephone"), "frmSell",
            settling(bill));
  }
  till_->waitFor("frmSell");
  newBill();
}

// In the order of the Tab key.
void Day::typeTenders(Ledger::Bill& bill) {
  bill.paidWith(Tender::kCash) = bill.goodsAmount() + Currency::fromYuan(below(50));
  if (chance(50)) {
    bill.paidWith(Tender::kFavorable) = Currency::fromScaled(std::int64_t{below(100)} * 100);
    bill.salesman = static_cast<int>(below(9));
    bill.paidWith(Tender::kBankCard) = Currency::fromYuan(below(20));
    if (chance(50)) {
      bill.slip = "28A" + std::to_string(number_);
      std::swap(bill.paidWith(Tender::kPhone), bill.paidWith(Tender::kCash));
    }
    play("Tab '" + generalNumber(bill.paidWith(Tender::kFavorable)) + " Tab '" +
         std::to_string(bill.salesman) + " Tab '" +
         generalNumber(bill.paidWith(Tender::kBankCard)) + " Tab '" +
         generalNumber(bill.paidWith(Tender::kPhone)) + " Tab '" + bill.slip + " Return");
  }
  till_->type(generalNumber(bill.paidWith(Tender::kCash)));
}

/// False when no card has enough.
bool Day::typeCard(Ledger::Bill& bill) {
  const auto& money = journal_.confirmed().money;
  const auto rich = std::ranges::find_if(goods_.cards(), [&](const auto& card) {
    return money.at("card of " + card.first) >= bill.goodsAmount();
  });
  if (rich == goods_.cards().end()) return false;
  bill.card = rich->first;
  bill.paidWith(Tender::kStoredCard) = bill.goodsAmount();
  play("@czk =" + bill.card + " '" + rich->second.password);
  return true;
}

Journal::Step Day::settling(const Ledger::Bill& bill) const {
  return [bill, number = number_](Ledger& ledger) {
    const Currency amount = bill.goodsAmount();
    ledger.put(number, bill);
    Currency kept = amount;
    for (std::size_t i = 1; i < kTenders; ++i) kept -= bill.tendered[i];
    ledger.money[inShift("cash of bill " + std::to_string(number), ledger)] = kept;
    ledger.numbers["entries of bill " + std::to_string(number)] = 1;
    for (const Ledger::Line& line : bill.lines) ledger.addStock(line, -line.quantity);
    if (!bill.card.empty()) ledger.money["card of " + bill.card] -= amount;
    if (bill.member.empty()) return;
    ledger.money["purchases of " + bill.member] += amount;
    double& points = ledger.numbers["points of " + bill.member];
    const auto before = static_cast<std::int16_t>(points);
    points = pointsAfter(amount, kPointUnit, before).value_or(before);
  };
}

// Record and balance are two writes, one after the other.
void Day::topUp() {
  const std::string card = anyCard(), account = "card of " + card;
  const Currency paid = Currency::fromYuan(50 + below(100));
  const Currency credited = paid + Currency::fromYuan(below(20));
  lastTopUp_ = "卡号 " + card + "，付款 " + twoDecimals(paid) + "，充值 " + twoDecimals(credited);
  play("F9 >cardStored =" + card + " =" + generalNumber(paid) + " =" + generalNumber(credited) +
       " @cmdOk2");
  const auto record = [=](Ledger& ledger) {
    const std::string name = "top-up " + std::to_string(++ledger.topUps);
    ledger.money[name + " of " + card + ", paid"] = paid;
    ledger.money[name + ", credited"] = credited;
    ledger.money[name + ", balance"] = ledger.money[account] + credited;
    ledger.numbers[name + ", completed"] = 0;
    ledger.numbers["entries of " + name] = 1;
  };
  const auto both = [=](Ledger& ledger) {
    record(ledger);
    const std::string number = std::to_string(ledger.topUps);
    ledger.numbers["top-up " + number + ", completed"] = 1;
    ledger.money[inShift("cash of top-up " + number, ledger)] = paid;
    ledger.numbers["entries of loading " + number] = 1;
    ledger.money[account] += credited;
  };
  confirm("top-up of card " + card, "messageBox", both, record);
  play("Return >frmSell");
}

void Day::takeBack() {
  play(toFurther(kReturns) + ">frmUnSell");
  const auto& bills = journal_.confirmed().bills;
  const auto chosen = std::prev(bills.end(), 1 + below(std::min<std::size_t>(20, bills.size())));
  takeBackLineOf(chosen->first, chosen->second);
  play("Esc >frmMenu Return >frmSell");
  newBill();
}

void Day::takeBackLineOf(int number, const Ledger::Bill& bill) {
  const auto line = std::ranges::find_if(bill.lines, [](auto& each) { return each.quantity > 0; });
  if (line == bill.lines.end()) return;
  Ledger::Line gone = *line;
  if (chance(50)) gone.quantity = std::min(gone.quantity, 0.5);
  play("=" + std::to_string(number) + " =" + gone.code + " =" + generalNumber(gone.quantity));
  const auto taken = [number, gone, position = line - bill.lines.begin()](Ledger& ledger) {
    const std::string name = "return " + std::to_string(++ledger.returns);
    ledger.money[name + " on bill " + std::to_string(number)] = gone.money();
    ledger.money[inShift("cash of " + name, ledger)] = gone.money();
    ledger.numbers[name + ", pieces of " + gone.item] = gone.quantity;
    ledger.addStock(gone, gone.quantity);
    ++ledger.numbers["entries of returns on bill " + std::to_string(number)];
    Ledger::Bill left = ledger.bills.at(number);
    double& quantity = left.lines.at(static_cast<std::size_t>(position)).quantity;
    quantity = roundedQuantity(quantity - gone.quantity);
    ledger.put(number, left);
    if (!left.member.empty()) ledger.money["purchases of " + left.member] -= gone.money();
  };
  confirm("return on bill " + std::to_string(number), "frmUnSell", taken);
}

void Day::close() {
  while (!held_.empty() || !bill_.lines.empty()) bill_.lines.empty() ? recall() : leaveBill("F12");
  play("Esc >frmMenu Down Down Down Down");
  till_->key("Return");
  if (till_->waitForEnd() != 0) throw std::runtime_error("the till did not end cleanly");
}
