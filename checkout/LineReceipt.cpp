#include "checkout/LineReceipt.h"

#include <algorithm>
#include <iterator>

#include "app/posMod.h"
#include "base/Gbk.h"
#include "base/NumberText.h"
#include "checkout/CashDrawer.h"
#include "platform/PortError.h"
#include "saleslib/ClsSell.h"

namespace {

std::string blanks(std::size_t count) {
  return std::string(count, ' ');
}

std::size_t columns(int width) {
  return static_cast<std::size_t>(width);
}

/// Points as they will be once the amount is credited, with one decimal.
std::string pointsText(Currency amount, std::int16_t unit, std::int16_t points) {
  const Currency held = Currency::fromYuan(points);
  if (!pointsAfter(amount, unit, points)) return oneDecimal(held);
  return oneDecimal(held + Currency::fromScaled(amount.scaled() / unit));
}

}  // namespace

LineReceipt::LineReceipt(posMod& pos, CashDrawer& drawer, Outage::Report report)
    : pos_(pos), drawer_(drawer), outage_(std::move(report)) {}

bool LineReceipt::isPossible() const {
  return !pos_.gPosSet.PPort.empty() && pos_.gPosSet.PPort != "USB";
}

void LineReceipt::start() {
  isOn_ = isPossible();
  if (!pos_.gPosSet.PPort.empty()) widths_ = ReceiptColumns::forModel(pos_.gPosSet.PModel);
}

void LineReceipt::PrintHeader(const ClsSell& bill) {
  if (isOn_) print(bill.BillNo(), headerLines());
}

void LineReceipt::PrintLine(const ClsSellItem& line) {
  if (isOn_) print(line.BillNo(), {lineText(line)});
}

void LineReceipt::PrintFoot(const ClsSell& bill, const ClsMember* member,
                            std::int64_t originalPrice) {
  if (!isOn_) {
    unsent_.clear();
    drawer_.OpenDrawer();
    return;
  }
  failedBill_ = 0;
  const std::vector<std::string> foot = footLines(bill, member, originalPrice);
  // The drawer opens while the paper still moves, so that the cashier does not wait for the texts.
  const auto rest = foot.begin() + (drawer_.isThere() ? 2 : 0);
  if (drawer_.isThere()) {
    print(bill.BillNo(), {foot.begin(), rest});
    const bool onThisPort = pos_.gPosSet.MBPort == pos_.gPosSet.PPort;
    if (unsent_.empty() || !onThisPort) drawer_.OpenDrawer();
  }
  std::vector<std::string> lines;
  std::copy_if(rest, foot.end(), std::back_inserter(lines),
               [](const std::string& line) { return !line.empty(); });
  lines.resize(lines.size() + 4);
  const std::vector<std::string> nextHeader = headerLines();
  lines.insert(lines.end(), nextHeader.begin(), nextHeader.end());
  print(bill.BillNo(), lines);
  if (!unsent_.empty()) unsent_ = nextHeader;
}

void LineReceipt::FeedLines(const ClsSell& bill) {
  if (isOn_) print(bill.BillNo(), {"", ""});
}

std::vector<std::string> LineReceipt::headerLines() const {
  const ReceiptColumns& widths = widths_;
  std::string titles = "商品名称 单价";
  if (widths.name >= 14) titles = gbk::centred("商品名称", columns(widths.name - 4)) + "单价";
  titles += widths.quantity < 6 ? " 数量" : blanks(columns(widths.quantity - 4)) + "数量";
  titles += widths.amount < 6 ? " 金额" : blanks(columns(widths.amount - 5)) + "金额";

  const std::size_t line = columns(widths.line);
  return {gbk::centred("", line), gbk::centred(pos_.gSysParam.ShopName(), line),
          gbk::centred(titles, line)};
}

std::string LineReceipt::lineText(const ClsSellItem& line) const {
  const ReceiptColumns& widths = widths_;
  const std::string price = twoDecimals(line.Price());
  const std::size_t forName = columns(widths.name) - std::min(columns(widths.name), price.size());
  const std::string name = gbk::cut(line.SpName(), forName);
  return name + blanks(forName - gbk::width(name)) + price +
         gbk::right(generalNumber(line.Quantity()), columns(widths.quantity)) +
         gbk::right(twoDecimals(line.Money()), columns(widths.amount));
}

std::vector<std::string> LineReceipt::footLines(const ClsSell& bill, const ClsMember* member,
                                                std::int64_t originalPrice) const {
  const Date date = bill.SellTime().date;
  const std::size_t width = columns(widths_.line);
  return {totalText(bill, member),
          "日期：" + std::to_string(date.month) + "-" + std::to_string(date.day) + " 流水号：" +
              std::to_string(bill.BillNo()) + " 收银员：" + pos_.gOperator->Code(),
          gbk::centred("销售时刻(" + shortTime(bill.SellTime()) + ")", width, '-'),
          "原价总计:" + std::to_string(originalPrice) + "应收" + oneDecimal(bill.Amount()) +
              "现金" + oneDecimal(bill.Cash()) + "银行卡" + oneDecimal(bill.BankCard()) + "储值卡" +
              oneDecimal(bill.CardPay()) + "找零" + oneDecimal(bill.Change()),
          gbk::centred("-----------------", width, '-'),
          pos_.gSysParam.ReceiptText2(),
          pos_.gSysParam.ReceiptText3()};
}

std::string LineReceipt::totalText(const ClsSell& bill, const ClsMember* member) const {
  const ReceiptColumns& widths = widths_;
  std::string text = gbk::centred("总    计", columns(widths.name)) +
                     gbk::right(generalNumber(bill.Quantity()), columns(widths.quantity)) +
                     gbk::right(twoDecimals(bill.Amount()), columns(widths.amount));
  if (member != nullptr) {
    text += "\r\n会员卡：" + member->Bh() + "，累计积分：" +
            pointsText(bill.Amount(), pos_.gSysParam.PointUnit(), member->Points());
  }
  return text;
}

void LineReceipt::print(std::int32_t billNo, const std::vector<std::string>& lines) {
  unsent_.insert(unsent_.end(), lines.begin(), lines.end());
  if (failedBill_ == billNo) return;
  std::string bytes;
  for (const std::string& line : unsent_) bytes += gbk::encode(line) + "\r\n";
  try {
    pos_.ports.portFile(pos_.gPosSet.PPort)->send(bytes);
    unsent_.clear();
    outage_.worked();
  } catch (const PortError& error) {
    failedBill_ = billNo;
    outage_.failed(QString::fromUtf8(error.what()));
  }
}
