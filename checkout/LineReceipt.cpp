#include "checkout/LineReceipt.h"

#include <algorithm>
#include <iterator>

#include "app/DeviceBytes.h"
#include "app/posMod.h"
#include "base/Gbk.h"
#include "base/NumberText.h"
#include "checkout/CashDrawer.h"
#include "checkout/SaleState.h"
#include "checkout/SettlementTexts.h"
#include "platform/PortError.h"

namespace {

std::string blanks(std::size_t count) {
  return std::string(count, ' ');
}

std::size_t columns(int width) {
  return static_cast<std::size_t>(width);
}

/// Ends in its column, and is never cut: wider, with the blank before it, it begins further left.
std::string figure(const std::string& text, int width) {
  return blanks(std::max(columns(width), text.size() + 1) - text.size()) + text;
}

/// The name's beginning that stands before a figure without being read as a part of it.
std::string beforeFigure(const std::string& name, std::size_t room) {
  const std::string cut = gbk::cut(name, room);
  const bool endsInAscii = !cut.empty() && static_cast<unsigned char>(cut.back()) < 0x80;
  const bool touches = endsInAscii && gbk::width(cut) == room;
  return touches ? gbk::cut(cut, room - 1) : cut;
}

/// Points as they will be once the amount is credited, with one decimal.
std::string pointsText(Currency amount, std::int16_t unit, std::int16_t points) {
  const Currency held = Currency::fromYuan(points);
  if (!pointsAfter(amount, unit, points)) return oneDecimal(held);
  return oneDecimal(held + Currency::fromScaled(amount.scaled() / unit));
}

}  // namespace

LineReceipt::LineReceipt(posMod& pos, SaleState& state, CashDrawer& drawer, Outage::Report report)
    : pos_(pos), state_(state), drawer_(drawer), outage_(std::move(report)) {}

void LineReceipt::PrintHeader() {
  if (state_.linePrint) print(headerLines());
}

void LineReceipt::PrintLine() {
  if (state_.linePrint) print({lineText()});
}

void LineReceipt::PrintFoot() {
  if (!state_.linePrint) {
    unsent_.clear();
    drawer_.OpenDrawer();
    return;
  }
  failedBill_ = 0;
  // The drawer opens while the paper still moves, so that the cashier does not wait for the texts.
  std::vector<std::string> lines = totalLines();
  if (state_.hasDrawer) {
    print(lines);
    lines.clear();
    const bool onThisPort = pos_.gPosSet.MBPort == pos_.gPosSet.PPort;
    if (unsent_.empty() || !onThisPort) drawer_.OpenDrawer();
  }
  const std::vector<std::string> payment = paymentLines();
  std::copy_if(payment.begin(), payment.end(), std::back_inserter(lines),
               [](const std::string& line) { return !line.empty(); });
  lines.resize(lines.size() + 4);
  const std::vector<std::string> nextHeader = headerLines();
  lines.insert(lines.end(), nextHeader.begin(), nextHeader.end());
  print(lines);
  if (!unsent_.empty()) unsent_ = nextHeader;
}

void LineReceipt::FeedLines() {
  if (state_.linePrint) print({"", ""});
}

std::vector<std::string> LineReceipt::headerLines() const {
  const ReceiptColumns& widths = state_.receiptCols;
  std::string titles = "商品名称 单价";
  if (widths.name >= 14) titles = gbk::centred("商品名称", columns(widths.name - 4)) + "单价";
  titles += widths.quantity < 6 ? " 数量" : blanks(columns(widths.quantity - 4)) + "数量";
  titles += widths.amount < 6 ? " 金额" : blanks(columns(widths.amount - 5)) + "金额";

  const std::size_t line = columns(widths.line);
  return {gbk::centred("", line), gbk::centred(pos_.gSysParam.ShopName(), line),
          gbk::centred(titles, line)};
}

std::string LineReceipt::lineText() const {
  const ClsSellItem& line = *state_.curLine;
  const std::string price = twoDecimals(line.Price());
  const std::string sum = figures(line.Quantity(), line.Money());
  const std::size_t room = roomBeside(price + sum);
  const std::string name = beforeFigure(line.SpName(), room);
  return name + blanks(room - gbk::width(name)) + price + sum;
}

std::string LineReceipt::figures(double quantity, Currency amount) const {
  return figure(generalNumber(quantity), state_.receiptCols.quantity) +
         figure(twoDecimals(amount), state_.receiptCols.amount);
}

std::size_t LineReceipt::roomBeside(const std::string& figures) const {
  const std::size_t line = columns(state_.receiptCols.line);
  return line - std::min(line, figures.size());
}

std::vector<std::string> LineReceipt::totalLines() const {
  const ClsSell& bill = *state_.curBill;
  const std::string sum = figures(bill.Quantity(), bill.Amount());
  const std::size_t room = roomBeside(sum);
  const std::string title = gbk::centred("总    计", room);
  std::vector<std::string> lines = {title + blanks(room - std::min(room, gbk::width(title))) + sum};
  if (const auto& member = state_.curMember) {
    lines.push_back("会员卡：" + member->Bh() + "，累计积分：" +
                    pointsText(bill.Amount(), pos_.gSysParam.PointUnit(), member->Points()));
  }
  const Date date = bill.SellTime().date;
  lines.push_back("日期：" + std::to_string(date.month) + "-" + std::to_string(date.day) +
                  " 流水号：" + std::to_string(bill.BillNo()) + " 收银员：" +
                  pos_.gOperator->Code());
  return lines;
}

std::vector<std::string> LineReceipt::paymentLines() const {
  const ClsSell& bill = *state_.curBill;
  const std::size_t width = columns(state_.receiptCols.line);
  return {gbk::centred("销售时刻(" + shortTime(bill.SellTime()) + ")", width, '-'),
          "原价总计:" + std::to_string(state_.origTotal) + "应收" + oneDecimal(bill.Amount()) +
              tenderFigures(moneyTendersOf(bill, pos_.gSysParam), bill, oneDecimal) + "找零" +
              oneDecimal(bill.Change()),
          gbk::centred("-----------------", width, '-'), pos_.gSysParam.ReceiptText2(),
          pos_.gSysParam.ReceiptText3()};
}

void LineReceipt::print(const std::vector<std::string>& lines) {
  unsent_.insert(unsent_.end(), lines.begin(), lines.end());
  if (failedBill_ == state_.curBill->BillNo()) return;
  try {
    pos_.ports.portFile(pos_.gPosSet.PPort)->send(device::printedLines(unsent_));
    unsent_.clear();
    outage_.worked();
  } catch (const PortError& error) {
    failedBill_ = state_.curBill->BillNo();
    outage_.failed(QString::fromUtf8(error.what()));
  }
}
