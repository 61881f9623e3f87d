#include "checkout/Checkout.h"

#include "app/posMod.h"
#include "base/NumberText.h"
#include "checkout/AmountDue.h"
#include "checkout/BillStock.h"
#include "checkout/CurrentLine.h"
#include "checkout/CustomerDisplay.h"
#include "checkout/LineReceipt.h"
#include "checkout/PageReceipt.h"
#include "checkout/PaidBill.h"
#include "checkout/PrintMode.h"
#include "checkout/SaleScreen.h"
#include "checkout/SaleState.h"
#include "checkout/Settlement.h"
#include "store/StoreError.h"

namespace {

QString shown(const std::string& text) {
  return QString::fromStdString(text);
}

std::string statusText(const ClsSell& bill) {
  return "应收" + generalNumber(bill.Amount()) + " 现金" + generalNumber(bill.Cash()) + "银行卡" +
         generalNumber(bill.BankCard()) + "储值卡" + generalNumber(bill.CardPay()) + "优惠" +
         generalNumber(bill.Favorable()) + "找零" + generalNumber(bill.Change()) + "元";
}

std::string lastBillText(const ClsSell& bill) {
  const std::string change = bill.FiguresFit() ? oneDecimal(bill.Change()) : kDoesNotFit;
  return "上一单：金额 " + oneDecimal(bill.Amount()) + "实收现金" + oneDecimal(bill.Cash()) +
         "银行卡" + oneDecimal(bill.BankCard()) + "储值卡" + oneDecimal(bill.CardPay()) + "找零" +
         change + "  优惠" + generalNumber(bill.Favorable());
}

std::optional<Currency> amountDue(const ClsSell& bill, const ClsSysParam& rules) {
  try {
    Currency amount = bill.GoodsAmount();
    return Currency::parse(myCStr(amount, rules));
  } catch (const Overflow&) {
    return std::nullopt;
  }
}

std::string memberText(const ClsMember& member) {
  return "会员：" + member.Name() + "，办卡日期：" + dateText(member.JoinDate()) + "，累计消费：" +
         twoDecimals(member.TotalSpent());
}

std::string purchaseText(const ClsSell& bill) {
  std::string goods;
  for (const auto& line : bill.Items()) goods += (goods.empty() ? "" : "、") + line->SpName();
  return "\n最近消费时间：" + generalText(bill.SellTime()) + "，金额：" +
         twoDecimals(bill.Amount()) + "\n最近购买商品：" + goods;
}

}  // namespace

Checkout::Checkout(posMod& pos, SaleState& state, SaleScreen& screen, CustomerDisplay& display,
                   LineReceipt& receipt)
    : pos_(pos),
      state_(state),
      screen_(screen),
      display_(display),
      receipt_(receipt),
      pagePrinter_([&screen](const QString& text) { screen.ShowMessage(text); }) {}

void Checkout::SettleBill() {
  if (!state_.curLine && state_.curBill->Items().empty()) {
    screen_.ShowMessage(tr("没有商品，无需结账！"));
    return;
  }
  if (!canStore()) return screen_.endProgram();
  if (state_.curLine) commitLine();
  if (!takePayment()) return;
  if (storeSettled(pos_, *state_.curBill)) {
    screen_.setStatus(shown(statusText(*state_.curBill)));
    state_.lastBill = std::move(state_.curBill);
    printPageReceipts();
  } else {
    dropUnstored();
  }
  PrepareNextBill();
}

// Nothing else can be done with such a file either, not even cancelling the bill: it stays open in
// the copy that the end of the program makes.
bool Checkout::canStore() {
  while (true) {
    const std::string fault = pos_.dataFileFault();
    if (fault.empty()) return true;
    const QString question = tr("%1\n文件已经放好，继续收款吗？选“否”将退出程序。");
    if (!screen_.askYesNo(question.arg(shown(fault)), {}, true)) return false;
  }
}

void Checkout::commitLine() {
  const bool editing = !state_.onEntryRow;
  commitCurrentLine(state_, receipt_);
  screen_.rowsChanged();
  if (editing) screen_.PlaceEditor();
}

bool Checkout::takePayment() {
  const auto due = amountDue(*state_.curBill, pos_.gSysParam);
  if (!due) {
    screen_.ShowMessage(tr("应收金额太大，不能结账。"));
    return false;
  }
  state_.curBill->setAmount(*due);
  Settlement settlement(pos_, *state_.curBill, display_, receipt_, screen_);
  return screen_.settle(settlement);
}

// Withdrawn before the cashier is told to enter it again: a message waits, and a power cut
// meanwhile must not leave a paid bill behind that the next opening completes beside the new one.
void Checkout::dropUnstored() {
  QString text = tr("保存单据出错，请重新录入本单！");
  const ClsSell& bill = *state_.curBill;
  if (bill.CardPay() != Currency()) {
    text += tr("\n储值卡 %1 已扣款 %2 元。")
                .arg(shown(bill.CardNo()), shown(generalNumber(bill.CardPay())));
  }
  dropped_ = std::move(state_.curBill);
  try {
    withdrawDropped();
  } catch (const StoreError&) {
    // the next bill does not open before this one is withdrawn
  }
  screen_.ShowMessage(text);
}

void Checkout::withdrawDropped() {
  if (!dropped_) return;
  VoidBill(pos_, screen_, *dropped_);
  dropped_ = nullptr;
}

void Checkout::printPageReceipts() {
  if (pos_.gPosSet.PPort != "USB") return;
  const PrintMode mode = PrintMode::of(pos_.gPosSet.printAmount);
  int copies = mode.copies;
  if (mode.asks && screen_.askYesNo(tr("确定要打印吗"), tr("提示"), mode.yesPreselected))
    copies = 1;
  for (int i = 0; i < copies; ++i) printOurP();
}

void Checkout::printOurP() {
  if (!state_.lastBill) return;
  try {
    pos_.ports.pagePrinter(pos_.gPosSet.PModel)->print(pageReceipt(pos_, state_));
    pagePrinter_.worked();
  } catch (const Failure& error) {
    pagePrinter_.failed(QString::fromUtf8(error.what()));
  }
}

void Checkout::PrepareNextBill() {
  state_.curBill = nullptr;
  auto next = openNextBill();
  if (next) {
    ShowNextBill(std::move(next));
  } else {
    screen_.endProgram();
  }
}

// A bill that was to be withdrawn when the program ends here has not been entered again, because
// nothing could be stored since: completing it at the next opening is right.
std::shared_ptr<ClsSell> Checkout::openNextBill() {
  while (true) {
    try {
      withdrawDropped();
      return openBill();
    } catch (const StoreError& failure) {
      emptyList();
      const QString question = tr("不能开始下一单：%1\n排除原因后再试一次吗？选“否”将退出程序。");
      if (!screen_.askYesNo(question.arg(QString::fromUtf8(failure.what())), {}, true)) return {};
    }
  }
}

std::shared_ptr<ClsSell> Checkout::openBill() {
  auto bill = std::make_shared<ClsSell>();
  const ClsOperator& cashier = *pos_.gOperator;
  if (bill->Open(*pos_.gConn, 0, cashier.Id(), pos_.clock)) return bill;
  throw StoreError(tr("操作员“%1”已被删除，不能再开单。").arg(shown(cashier.Name())).toStdString());
}

void Checkout::emptyList() {
  state_.clearRows();
  state_.AddEntryRow();
  screen_.rowsChanged();
  screen_.PlaceEditor();
}

void Checkout::ShowNextBill(std::shared_ptr<ClsSell> next) {
  state_.curBill = std::move(next);
  emptyList();
  state_.onEntryRow = true;
  ShowBillNo();
  if (state_.lastBill && !showLastBill()) return;
  state_.curLine = nullptr;
  state_.curMember = nullptr;
  ShowMemberInfo();
  state_.clearOnKey = false;
}

void Checkout::ShowBillNo() {
  screen_.setTitle1(shown("流水号：" + std::to_string(state_.curBill->BillNo()) + "   收银员：" +
                          pos_.gOperator->Name()));
}

bool Checkout::showLastBill() {
  const ClsSell& last = *state_.lastBill;
  screen_.setTitle3(shown(lastBillText(last)));
  if (last.FiguresFit()) {
    display_.clientView(last.Cash() - last.Amount(), CustomerDisplay::kChange);
  }
  if (last.SellTime().date <= state_.curBill->SellTime().date) return true;
  screen_.ShowMessage(tr("日期或时间错误！将退出销售，请与管理员联系"));
  screen_.endProgram();
  return false;
}

void Checkout::ShowMemberInfo() {
  if (!state_.curMember) {
    screen_.setMemberInfo({});
    return;
  }
  std::string text = memberText(*state_.curMember);
  ClsSell latest;
  if (latest.OpenLastOfMember(*pos_.gConn, state_.curMember->Id())) {
    latest.LoadLines();
    text += purchaseText(latest);
  }
  screen_.setMemberInfo(shown(text));
}
