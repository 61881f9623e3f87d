#include "checkout/ReceiptLines.h"

#include <algorithm>

#include "base/Gbk.h"
#include "base/NumberText.h"
#include "devices/Paper.h"
#include "saleslib/ClsMember.h"
#include "saleslib/ClsSell.h"
#include "saleslib/ClsSellItem.h"
#include "saleslib/ClsSysParam.h"
#include "saleslib/Tenders.h"

// Papers are Chinese whatever the screens speak.

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

/// Quantity and amount, each in its column with a blank before it; longer than the two columns
/// when a figure needs it.
std::string figures(double quantity, Currency amount, const Paper& paper) {
  return figure(generalNumber(quantity), paper.quantity) +
         figure(twoDecimals(amount), paper.amount);
}

/// Columns that these figures leave of a line; none when they fill it.
std::size_t roomBeside(const std::string& figures, const Paper& paper) {
  const std::size_t line = columns(paper.line);
  return line - std::min(line, figures.size());
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

/// Names and figures of the kinds of payment, one behind the other.
std::string paidWith(const ClsSell& bill, const ClsSysParam& shop) {
  std::string text;
  for (const TenderKind* kind : moneyTendersOf(bill, shop)) {
    text.append(kind->name).append(oneDecimal(bill.Tendered(kind->tender)));
  }
  return text;
}

}  // namespace

std::vector<std::string> receiptHeading(const ClsSysParam& shop, const Paper& paper) {
  std::string titles = "商品名称 单价";
  if (paper.name >= 14) titles = gbk::centred("商品名称", columns(paper.name - 4)) + "单价";
  titles += paper.quantity < 6 ? " 数量" : blanks(columns(paper.quantity - 4)) + "数量";
  titles += paper.amount < 6 ? " 金额" : blanks(columns(paper.amount - 5)) + "金额";

  const std::size_t line = columns(paper.line);
  return {gbk::centred("", line), gbk::centred(shop.ShopName(), line), gbk::centred(titles, line)};
}

std::string receiptLine(const ClsSellItem& line, const Paper& paper) {
  const std::string price = twoDecimals(line.Price());
  const std::string sum = figures(line.Quantity(), line.Money(), paper);
  const std::size_t room = roomBeside(price + sum, paper);
  const std::string name = beforeFigure(line.SpName(), room);
  return name + blanks(room - gbk::width(name)) + price + sum;
}

std::vector<std::string> receiptTotals(const ClsSell& bill, const ReceiptFacts& facts,
                                       const ClsSysParam& shop, const Paper& paper) {
  const std::string sum = figures(bill.Quantity(), bill.Amount(), paper);
  const std::size_t room = roomBeside(sum, paper);
  const std::string title = gbk::centred("总    计", room);
  std::vector<std::string> lines = {title + blanks(room - std::min(room, gbk::width(title))) + sum};
  if (facts.member) {
    lines.push_back("会员卡：" + facts.member->Bh() + "，累计积分：" +
                    pointsText(bill.Amount(), shop.PointUnit(), facts.member->Points()));
  }
  const Date date = bill.SellTime().date;
  lines.push_back("日期：" + std::to_string(date.month) + "-" + std::to_string(date.day) +
                  " 流水号：" + std::to_string(bill.BillNo()) + " 收银员：" + facts.cashier);
  return lines;
}

std::vector<std::string> receiptPayment(const ClsSell& bill, const ReceiptFacts& facts,
                                        const ClsSysParam& shop, const Paper& paper) {
  const std::size_t width = columns(paper.line);
  return {gbk::centred("销售时刻(" + shortTime(bill.SellTime()) + ")", width, '-'),
          "原价总计:" + std::to_string(facts.originalTotal) + "应收" + oneDecimal(bill.Amount()) +
              paidWith(bill, shop) + "找零" + oneDecimal(bill.Change()),
          gbk::centred("-----------------", width, '-'), shop.ReceiptText2(), shop.ReceiptText3()};
}
