#include "returns/Returns.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "base/Failure.h"
#include "base/NumberText.h"
#include "base/Text.h"
#include "platform/QtText.h"

namespace {

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

Returns::Returns(ReturnBooks books) : books_(std::move(books)) {}

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
  ReturnBooks::Found found = books_.find(billNo);
  bill_ = std::move(found.bill);
  ensure((bill_ != nullptr) == (found.kind == ReturnBooks::Found::kSettled),
         "goods come back against a settled bill");
  switch (found.kind) {
    case ReturnBooks::Found::kUnknown:
      return tr("没有找到“%1”单据！").arg(billNo);
    case ReturnBooks::Found::kOpen:
      return tr("单据“%1”还没有结账，不能退货！").arg(billNo);
    case ReturnBooks::Found::kElsewhere:
      return tr("单据“%1”是 %2 号收银机的，请到那台收银机上退货！").arg(billNo).arg(found.till);
    case ReturnBooks::Found::kNoAnswer:
      return tr("没有联网，不能退别台的单！\n单据“%1”是 %2 号收银机的，可以到那台收银机上退货。")
          .arg(billNo)
          .arg(found.till);
    case ReturnBooks::Found::kDamaged:
      return qtText(found.damage);
    case ReturnBooks::Found::kSettled:
      break;
  }
  return {};
}

QString Returns::billText() const {
  ensure(bill_ != nullptr, "a loaded bill is told of");
  QString text =
      tr("流水号：%1 商品数量：%2 金额：%3\r\n 销售时间：%4 收银员：%5")
          .arg(QString::number(bill_->BillNo()), qtText(generalNumber(bill_->Quantity())),
               qtText(twoDecimals(bill_->Amount())), qtText(generalText(bill_->SellTime())),
               qtText(books_.cashierOf(*bill_).Name()));
  if (bill_->MemberId() > 0) {
    const ClsMember member = books_.memberOf(*bill_);
    text += tr("会员卡号：%1 会员姓名：%2").arg(qtText(member.Bh()), qtText(member.Name()));
  }
  return text;
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
  ensure(line_ != nullptr, "a quantity is a chosen line's");
  const auto quantity = parseNumber(typed.toStdString());
  return quantity ? roundedQuantity(std::min(*quantity, line_->Quantity())) : 0;
}

Currency Returns::worth(double quantity) const {
  ensure(line_ != nullptr, "goods have the worth of a chosen line");
  return quantity > 0 ? lineAmount(line_->Price(), quantity, line_->Discount()) : Currency();
}

// Refunded before for more than the pieces were worth. Each worth is rounded as it was proposed, so
// that goods that come back in steps raise no question of a fen.
Currency Returns::overpaid() const {
  Currency refunded, worthOfAll;
  for (const ClsUnSell::Earlier& earlier : books_.earlier(*line_)) {
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
    return text.arg(qtText(twoDecimals(refund)), qtText(twoDecimals(most)));
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
  ensure(bill_ != nullptr && line_ != nullptr, "a line of a loaded bill is taken back");
  if (!(quantity > 0)) return tr("没有可退的数量！");
  if (refund < Currency()) return tr("实退金额不能是负数！");
  try {
    return follow(books_.takeBack(*bill_, *line_, quantity, refund));
  } catch (const Failure& broken) {
    loadAgain();
    return qtText(broken.what());
  }
}

QString Returns::follow(const ReturnBooks::Outcome& outcome) {
  switch (outcome.kind) {
    case ReturnBooks::Outcome::kDone:
      line_ = nullptr;
      return {};
    case ReturnBooks::Outcome::kNothingHeld:
      loadAgain();
      return tr("没有可退的数量！");
    case ReturnBooks::Outcome::kRefused:
      loadAgain();
      return qtText(outcome.why);
    case ReturnBooks::Outcome::kNoAnswer:
      return qtText(outcome.why);  // to ask for the bill again would be two seconds more
  }
  return {};
}

// The bill at hand was being changed: what counts is what the data file holds.
void Returns::loadAgain() {
  const std::int32_t lineId = line_->Id();
  const QString gone = load(QString::number(bill_->BillNo()));
  if (gone.isEmpty()) chooseById(lineId);
}
