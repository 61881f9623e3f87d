#include "sale/Checkout.h"

#include <optional>
#include <utility>

#include "base/Failure.h"
#include "base/NumberText.h"
#include "checkout/AmountDue.h"
#include "checkout/ReceiptLines.h"
#include "checkout/Settlement.h"
#include "checkout/SettlementTexts.h"
#include "platform/QtText.h"
#include "sale/Sale.h"
#include "sale/SaleDevices.h"
#include "sale/SaleScreen.h"
#include "sale/SaleTexts.h"

namespace {

std::optional<Currency> amountDue(const ClsSell& bill, const ClsSysParam& rules) {
  try {
    Currency amount = bill.GoodsAmount();
    return Currency::parse(myCStr(amount, rules));
  } catch (const Overflow&) {
    return std::nullopt;
  }
}

}  // namespace

void Checkout::SettleBill() {
  if (sale_.isEmpty()) return screen_.ShowMessage(tr("没有商品，无需结账！"));
  if (!canStore()) return screen_.endProgram();
  if (sale_.line() != nullptr) commitLine();
  screen_.show(sale_.picture());
  Permit favour;
  if (!takePayment(favour)) return;
  if (books_.settle(*sale_.bill())) {
    sale_.settle(statusText(*sale_.bill(), books_.rules()));
    screen_.show(sale_.picture());
    const ClsSell& settled = *sale_.last();
    devices_.printReceipts(settled, [&] { return facts(books_.member(settled.MemberId())); });
  } else {
    dropUnstored();
  }
  favour.reset();  // the next bill needs none
  PrepareNextBill();
}

void Checkout::commitLine() {
  ensure(sale_.line() != nullptr, "a current line is committed");
  sale_.join();
  devices_.receipt.PrintLine(*sale_.bill()->Items().back());
}

// Nothing else can be done with such a file either, not even cancelling the bill: it stays open in
// the copy that the end of the program makes.
bool Checkout::canStore() {
  while (true) {
    const std::string fault = books_.fileFault();
    if (fault.empty()) return true;
    const QString question = tr("%1\n文件已经放好，继续收款吗？选“否”将退出程序。");
    if (!screen_.askYesNo(question.arg(qtText(fault)), {}, true)) return false;
  }
}

bool Checkout::takePayment(Permit& favour) {
  ClsSell& bill = *sale_.bill();
  const auto due = amountDue(bill, books_.rules());
  if (!due) {
    screen_.ShowMessage(tr("应收金额太大，不能结账。"));
    return false;
  }
  bill.setAmount(*due);
  Settlement settlement(books_, bill, devices_.display(), screen_, [this, &bill] {
    devices_.receipt.PrintFoot(bill, facts(sale_.sharedMember()));
  });
  const bool isPaid = screen_.settle(settlement);
  favour = settlement.favour();
  ensure(isPaid == bill.Paid(), "what the cashier confirmed is in the books, and nothing else");
  return isPaid;
}

ReceiptFacts Checkout::facts(std::shared_ptr<const ClsMember> member) const {
  return {books_.cashier().Code(), std::move(member), originalPrice(*sale_.bill())};
}

// Withdrawn before the cashier is told to enter it again: a message waits, and a power cut
// meanwhile must not leave a paid bill behind that the next opening completes beside the new one.
void Checkout::dropUnstored() {
  ensure(!dropped_ && sale_.bill()->Paid(), "one paid bill is withdrawn at a time");
  QString text = tr("保存单据出错，请重新录入本单！");
  dropped_ = std::make_unique<ClsSell>(*sale_.bill());
  if (dropped_->CardPay() != Currency()) {
    text += tr("\n储值卡 %1 已扣款 %2 元。")
                .arg(qtText(dropped_->CardNo()), qtText(generalNumber(dropped_->CardPay())));
  }
  try {
    withdrawDropped();
  } catch (const Failure&) {
    // the next bill does not open before this one is withdrawn
  }
  screen_.ShowMessage(text);
}

void Checkout::withdrawDropped() {
  if (!dropped_) return;
  const auto refusals = books_.cancel(*dropped_);
  dropped_ = nullptr;
  tell(refusals);
}

void Checkout::tell(const std::vector<StockOutcome>& refusals) {
  for (const StockOutcome& each : refusals) screen_.ShowMessage(sale_texts::refusal(each));
}

void Checkout::PrepareNextBill() {
  auto next = openNextBill();
  if (!next) return screen_.endProgram();
  sale_.begin(std::move(next), books_.cashier().Name());
  followLastBill();
}

// A bill that was to be withdrawn when the program ends here has not been entered again, because
// nothing could be stored since: completing it at the next opening is right.
std::shared_ptr<ClsSell> Checkout::openNextBill() {
  while (true) {
    QString reason;
    try {
      withdrawDropped();
      ensure(!dropped_, "nothing is stored before a dropped bill is withdrawn");
      if (auto next = books_.open()) return next;
      reason = operatorGone();
    } catch (const Failure& failure) {
      reason = qtText(failure.what());
    }
    sale_.clear();
    screen_.show(sale_.picture());
    const QString question = tr("不能开始下一单：%1\n排除原因后再试一次吗？选“否”将退出程序。");
    if (!screen_.askYesNo(question.arg(reason), {}, true)) return {};
  }
}

QString Checkout::operatorGone() const {
  return tr("操作员“%1”已被删除，不能再开单。").arg(qtText(books_.cashier().Name()));
}

void Checkout::followLastBill() {
  ensure(sale_.bill() && sale_.isEmpty(), "the bill before is told of over an empty one");
  if (!sale_.last()) return;
  const ClsSell& last = *sale_.last();
  sale_.setPrevious(lastBillText(last, books_.rules()));
  if (last.FiguresFit()) {
    devices_.display().clientView(last.Cash() - last.Amount(), CustomerDisplay::kChange);
  }
  if (last.SellTime().date <= sale_.bill()->SellTime().date) return;
  screen_.show(sale_.picture());
  screen_.ShowMessage(tr("日期或时间错误！将退出销售，请与管理员联系"));
  screen_.endProgram();
}
