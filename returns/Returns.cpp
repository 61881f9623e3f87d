#include "returns/Returns.h"

#include <algorithm>
#include <optional>

#include "app/posMod.h"
#include "base/Failure.h"
#include "base/NumberText.h"
#include "base/Text.h"
#include "saleslib/ClsSell.h"
#include "saleslib/ClsStock.h"
#include "saleslib/ClsUnSell.h"
#include "saleslib/StoredCard.h"
#include "store/StoreError.h"
#include "store/Transaction.h"

namespace {

constexpr std::int16_t kSettled = 1;

QString shown(const std::string& text) {
  return QString::fromStdString(text);
}

/// A typed bill number; nothing for one that no bill can have.
std::optional<std::int32_t> billNumber(const std::string& typed) {
  const auto number = parseNumber(typed);
  const auto whole = parseWhole32(typed);
  if (!number || !whole || *number != *whole || *whole <= 0) return std::nullopt;
  return whole;
}

std::string comparable(const std::string& code) {
  return trimmed(halfWidth(code));
}

}  // namespace

Returns::Returns(posMod& pos) : pos_(pos) {}

void Returns::unload() {
  bill_ = nullptr;
  line_ = nullptr;
}

QString Returns::load(const QString& number) {
  const std::string typed = number.toStdString();
  if (!parseNumber(typed)) return tr("无效的流水号！");
  unload();
  // Number 0 would start a new bill.
  const auto billNo = billNumber(typed);
  QString refusal = billNo ? open(*billNo) : tr("没有找到“%1”单据！").arg(number);
  if (!refusal.isEmpty()) unload();
  return refusal;
}

QString Returns::open(std::int32_t billNo) {
  bill_ = std::make_shared<ClsSell>();
  if (!bill_->Open(*pos_.gConn, billNo, 0)) return tr("没有找到“%1”单据！").arg(billNo);
  if (bill_->State() != kSettled) return tr("单据“%1”还没有结账，不能退货！").arg(billNo);
  try {
    bill_->LoadLines();
  } catch (const StoreError& damaged) {
    return shown(damaged.what());
  }
  return {};
}

QString Returns::billText() const {
  ClsOperator cashier;
  cashier.Init(*pos_.gConn, static_cast<std::int16_t>(bill_->OperatorId()));
  std::string text = "流水号：" + std::to_string(bill_->BillNo()) + " 商品数量：" +
                     generalNumber(bill_->Quantity()) + " 金额：" + twoDecimals(bill_->Amount()) +
                     "\r\n 销售时间：" + generalText(bill_->SellTime()) + " 收银员：" +
                     cashier.Name();
  if (bill_->MemberId() > 0) {
    ClsMember member;
    member.Init(*pos_.gConn, bill_->MemberId());
    text += "会员卡号：" + member.Bh() + " 会员姓名：" + member.Name();
  }
  return shown(text);
}

void Returns::chooseByCode(const QString& code) {
  const std::string wanted = comparable(code.toStdString());
  const auto& lines = bill_->Items();
  const auto found = std::find_if(lines.begin(), lines.end(), [&](const auto& line) {
    return line->Quantity() > 0 && equalIgnoringCase(comparable(line->EntryCode()), wanted);
  });
  line_ = found == lines.end() ? nullptr : *found;
}

void Returns::chooseById(std::int32_t lineId) {
  const auto& lines = bill_->Items();
  const auto found = std::find_if(lines.begin(), lines.end(),
                                  [&](const auto& line) { return line->Id() == lineId; });
  line_ = found == lines.end() ? nullptr : *found;
}

double Returns::quantityOf(const QString& typed) const {
  const auto quantity = parseNumber(typed.toStdString());
  return quantity ? roundedQuantity(std::min(*quantity, line_->Quantity())) : 0;
}

Currency Returns::worth(double quantity) const {
  return quantity > 0 ? lineAmount(line_->Price(), quantity, line_->Discount()) : Currency();
}

// Refunded before for more than the pieces were worth. Each worth is rounded as it was proposed, so
// that goods that come back in steps raise no question of a fen.
Currency Returns::overpaid() const {
  Currency refunded, worthOfAll;
  for (const ClsUnSell::Earlier& earlier : ClsUnSell::OfLine(*pos_.gConn, line_->Id())) {
    refunded += earlier.money;
    worthOfAll += worth(earlier.quantity);
  }
  return std::max(refunded - worthOfAll, Currency());
}

QString Returns::doubt(double quantity, Currency refund) const {
  ensure(line_ != nullptr, "a line is taken back");
  const Currency pieces = worth(quantity);
  const Currency left = std::max(worth(line_->Quantity()) - overpaid(), Currency());
  const auto question = [&](const QString& text, Currency most) {
    return text.arg(shown(twoDecimals(refund)), shown(twoDecimals(most)));
  };
  if (refund > pieces && pieces <= left) {
    return question(tr("实退金额 %1 元超过了所退商品的金额 %2 元，确定要退吗？"), pieces);
  }
  if (refund > left) {
    return question(
        tr("实退金额 %1 元超过了该商品的剩余金额 %2 元（以前退货时已多退），确定要退吗？"), left);
  }
  return {};
}

QString Returns::takeBack(double quantity, Currency refund) {
  ensure(line_ != nullptr && pos_.gOperator != nullptr, "a line is taken back by an operator");
  if (!(quantity > 0)) return tr("没有可退的数量！");
  if (refund < Currency()) return tr("实退金额不能是负数！");
  std::string refusal;
  try {
    refusal = store(quantity, refund);
  } catch (const Failure& broken) {
    refusal = broken.what();
  }
  if (refusal.empty()) {
    line_ = nullptr;
  } else {
    // The bill at hand was being changed: what counts is what the data file holds.
    const std::int32_t lineId = line_->Id();
    const QString gone = load(QString::number(bill_->BillNo()));
    if (gone.isEmpty()) chooseById(lineId);
  }
  return shown(refusal);
}

std::string Returns::store(double quantity, Currency refund) {
  Transaction all(*pos_.gConn);
  ClsUnSell record;
  record.Init(*pos_.gConn, bill_->BillNo(), 0, pos_.clock);
  record.setUnQty(quantity);
  record.setUnMoney(refund);
  record.setItemId(line_->Id());
  record.setOperatorId(pos_.gOperator->Id());
  record.setCost(line_->Cost());
  record.setRatio(line_->Ratio());
  record.setDiscount(line_->Discount());
  record.Save();
  // The record says how much really came back; everything else follows it.
  if (!(record.UnQty() > 0)) return tr("没有可退的数量！").toStdString();

  ClsStock stock;
  stock.Init(*pos_.gConn, line_->SpCode());
  if (!stock.PutBack(roundedQuantity(record.UnQty() * line_->Ratio()))) return stock.ErrText();
  lowerLine(record.UnQty());
  if (bill_->MemberId() > 0) debitPurchase(*pos_.gConn, bill_->MemberId(), record.UnMoney());
  if (!bill_->Save()) return bill_->ErrText();
  all.commit();
  return {};
}

void Returns::lowerLine(double quantity) {
  const Currency rounding = bill_->Amount() - bill_->GoodsAmount();
  line_->setQuantity(roundedQuantity(line_->Quantity() - quantity));
  line_->Save();
  bill_->Recalculate();
  if (!bill_->GoodsAmount().isZero()) bill_->setAmount(bill_->GoodsAmount() + rounding);
}
