#include "sale/Checkout.h"

#include <optional>

#include "app/posMod.h"
#include "base/Failure.h"
#include "base/NumberText.h"
#include "checkout/AmountDue.h"
#include "checkout/PaidBill.h"
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

Checkout::Checkout(posMod& pos, Sale& sale, BillBooks& books, SaleScreen& screen,
                   SaleDevices& devices)
    : pos_(pos), sale_(sale), books_(books), screen_(screen), devices_(devices) {}

void Checkout::SettleBill() {
  if (sale_.isEmpty()) return screen_.ShowMessage(tr("没有商品，无需结账！"));
  if (!canStore()) return screen_.endProgram();
  if (sale_.line() != nullptr) commitLine();
  screen_.show(sale_.picture());
  if (!takePayment()) return;
  ensure(sale_.bill()->Paid(), "a bill is stored as settled after its payment is durable");
  if (storeSettled(pos_, *sale_.bill())) {
    sale_.settle(statusText(*sale_.bill(), pos_.gSysParam));
    screen_.show(sale_.picture());
    devices_.printReceipts(*sale_.last());
  } else {
    dropUnstored();
  }
  PrepareNextBill();
}

void Checkout::commitLine() {
  sale_.join();
  devices_.receipt.PrintLine(*sale_.bill()->Items().back());
}

// Nothing else can be done with such a file either, not even cancelling the bill: it stays open in
// the copy that the end of the program makes.
bool Checkout::canStore() {
  while (true) {
    const std::string fault = pos_.dataFileFault();
    if (fault.empty()) return true;
    const QString question = tr("%1\n文件已经放好，继续收款吗？选“否”将退出程序。");
    if (!screen_.askYesNo(question.arg(qtText(fault)), {}, true)) return false;
  }
}

bool Checkout::takePayment() {
  ClsSell& bill = *sale_.bill();
  const auto due = amountDue(bill, pos_.gSysParam);
  if (!due) {
    screen_.ShowMessage(tr("应收金额太大，不能结账。"));
    return false;
  }
  bill.setAmount(*due);
  Settlement settlement(pos_, bill, devices_.display(), screen_,
                        [this, &bill] { devices_.printFoot(bill, sale_.sharedMember()); });
  return screen_.settle(settlement);
}

// Withdrawn before the cashier is told to enter it again: a message waits, and a power cut
// meanwhile must not leave a paid bill behind that the next opening completes beside the new one.
void Checkout::dropUnstored() {
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
  sale_.begin(std::move(next), cashier().Name());
  followLastBill();
}

// A bill that was to be withdrawn when the program ends here has not been entered again, because
// nothing could be stored since: completing it at the next opening is right.
std::shared_ptr<ClsSell> Checkout::openNextBill() {
  while (true) {
    QString reason;
    try {
      withdrawDropped();
      if (auto next = books_.open(cashier().Id())) return next;
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

const ClsOperator& Checkout::cashier() const {
  return *pos_.gOperator;
}

QString Checkout::operatorGone() const {
  return tr("操作员“%1”已被删除，不能再开单。").arg(qtText(cashier().Name()));
}

void Checkout::followLastBill() {
  if (!sale_.last()) return;
  const ClsSell& last = *sale_.last();
  sale_.setPrevious(lastBillText(last, pos_.gSysParam));
  if (last.FiguresFit()) {
    devices_.display().clientView(last.Cash() - last.Amount(), CustomerDisplay::kChange);
  }
  if (last.SellTime().date <= sale_.bill()->SellTime().date) return;
  screen_.show(sale_.picture());
  screen_.ShowMessage(tr("日期或时间错误！将退出销售，请与管理员联系"));
  screen_.endProgram();
}
