#include "sale/BillLines.h"

#include <algorithm>

#include "base/NumberText.h"
#include "base/Text.h"
#include "checkout/AmountDue.h"
#include "checkout/FigureCheck.h"
#include "platform/QtText.h"
#include "sale/Checkout.h"
#include "sale/Sale.h"
#include "sale/SaleDevices.h"
#include "sale/SaleScreen.h"
#include "sale/SaleTexts.h"

namespace {

constexpr std::size_t kLongestShortCode = 5;
constexpr std::size_t kShortestCode = 2;

// A code typed with the input method left on comes in full-width letters and digits. Texts with
// Chinese characters stay as typed, since they are looked for in names as these are written.
QString codeOf(const QString& typed) {
  const std::string folded = halfWidth(typed.toStdString());
  const bool plain = std::all_of(folded.begin(), folded.end(),
                                 [](char c) { return static_cast<unsigned char>(c) < 0x80; });
  return plain ? qtText(folded) : typed;
}

bool isBarcode(const QString& typed) {
  return characters(typed.toStdString()) > kLongestShortCode;
}

// A line of no quantity is as good as deleted. What is given away counts from the full price, and
// giving less away than before needs nobody.
std::optional<Deed> deedOf(const ClsSellItem& before, const ClsSellItem& changed) {
  if (changed.Quantity() != before.Quantity()) {
    if (changed.Quantity() < 0) return Deed{Right::kNegative};
    if (changed.Quantity() == 0) return Deed{Right::kDelete};
  }
  if (changed.Discount() >= before.Discount()) return std::nullopt;
  return Deed{Right::kDiscount, percentOff(changed.Discount())};
}

}  // namespace

BillLines::BillLines(const SalePart& part, Checkout& checkout)
    : SalePart(part), lookup_(sale_, books_, screen_), checkout_(checkout) {}

void BillLines::Enter() {
  const QString typed = sale_.input();
  const std::size_t length = characters(typed.toStdString());
  if (length == 0) {
    checkout_.SettleBill();
  } else if (sale_.onEntryRow()) {
    if (length >= kShortestCode) enterGoods(typed);
  } else if (isBarcode(typed)) {
    dropWhileEditing(typed);
  } else if (sale_.cell() == Sale::Cell::kQuantity) {
    changeQuantity(typed);
  } else if (sale_.cell() == Sale::Cell::kDiscount) {
    changeDiscount(typed);
  }
}

void BillLines::EnterQuickKey(const QString& itemCode) {
  if (!sale_.onEntryRow()) {
    dropWhileEditing(itemCode);
  } else if (characters(itemCode.toStdString()) < kShortestCode) {
    notFound(itemCode);
  } else {
    enterGoods(itemCode);
  }
}

// The input line is emptied too when the line was refused: the next scan must not be appended.
void BillLines::enterGoods(const QString& typed) {
  if (sale_.line() != nullptr) checkout_.commitLine();
  const QString code = codeOf(typed);
  auto line = isBarcode(typed) ? lookup_.LookupBarcode(code) : lookup_.LookupSpec(code);
  if (!line && !lookup_.givenUp() && !isBarcode(typed)) line = lookup_.LookupItemNo(code);
  const Permit price = lookup_.takePriceLeave();
  if (lookup_.givenUp()) return sale_.setInput(typed);
  if (!line) return notFound(typed);
  line->setQuantity(1);
  if (!ring(std::move(line))) sale_.setInput({});
}

bool BillLines::ring(std::shared_ptr<ClsSellItem> line) {
  return guarded([&] {
    const QString status = statusWith(*line);
    const StockOutcome stock = books_.ring(*line);
    if (!stock.done()) {
      screen_.ShowMessage(sale_texts::refusal(stock));
      return false;
    }
    sale_.ring(std::move(line), stock.left);
    tell(status);
    warn(stock);
    return true;
  });
}

void BillLines::warn(const StockOutcome& stock) {
  if (!stock.isDoubtful) return;
  screen_.show(sale_.picture());
  screen_.ShowMessage(tr("%1的库存按本机的账是 %2。现在没有联网，照卖。")
                          .arg(qtText(sale_.line()->SpName()), qtText(generalNumber(stock.left))));
}

// Goods are not rung before the change of the line is finished.
void BillLines::dropWhileEditing(const QString& code) {
  if (!correct(*sale_.line())) sale_.backToEntry();
  screen_.show(sale_.picture());
  screen_.ShowMessage(tr("正在修改商品行，“%1”没有录入。请重新录入。").arg(code));
}

void BillLines::notFound(const QString& code) {
  const QString text = isBarcode(code) ? tr("没有找到条码为：%1的商品") : tr("没有找到：%1的商品");
  screen_.ShowMessage(text.arg(code));
  sale_.setInput({});
}

void BillLines::changeQuantity(const QString& typed) {
  const auto quantity = parseNumber(typed.toStdString());
  const double before = sale_.line()->Quantity();
  if (!quantity) return sale_.setInput({});
  if (*quantity == before) return sale_.backToEntry();
  ClsSellItem changed = *sale_.line();
  changed.setQuantity(*quantity);
  change(std::move(changed), typed, qtText(generalNumber(before)));
}

void BillLines::changeDiscount(const QString& typed) {
  const auto factor = parseNumber(typed.toStdString());
  const bool meant =
      factor && *factor >= 0 && FigureCheck(books_.rules(), screen_).discount(Discount(*factor));
  if (!meant) return sale_.setInput({});
  ClsSellItem changed = *sale_.line();
  changed.setDiscount(Discount(*factor));
  change(std::move(changed), typed, {});
}

// What was typed stays, to be taken again or typed over, when nobody allows it.
void BillLines::change(ClsSellItem changed, const QString& typed, const QString& refused) {
  const Permit allowed = leave(deedOf(*sale_.line(), changed));
  if (!allowed) return sale_.setInput(typed);
  if (!correct(std::move(changed))) sale_.setInput(refused);
}

bool BillLines::correct(ClsSellItem changed) {
  return guarded([&] {
    const QString status = statusWith(changed);
    const StockOutcome stock = books_.correct(*sale_.line(), std::move(changed));
    if (!stock.done()) {
      screen_.ShowMessage(sale_texts::refusal(stock));
      return false;
    }
    sale_.correct(stock.left);
    tell(status);
    warn(stock);
    return true;
  });
}

QString BillLines::statusWith(const ClsSellItem& line) const {
  SaleFigures figures = sale_.figuresWith(&line);
  const std::string due = myCStr(figures.goods, books_.rules());
  return sale_texts::rung(figures, due);
}

void BillLines::tell(const QString& status) {
  sale_.setStatus(status);
  devices_.display().clientView(sale_.line()->Price(), CustomerDisplay::kPrice);
}

bool BillLines::CancelBill() {
  Permit allowed = leave(sale_.isEmpty() ? std::nullopt : std::optional(Deed{Right::kDelete}));
  if (!allowed) return false;
  devices_.receipt.FeedLines(*sale_.bill());
  if (sale_.isEmpty()) {
    screen_.ShowMessage(tr("没有商品，无需删除！"));
  } else if (voidBill()) {
    allowed.reset();  // the next bill needs none
    checkout_.PrepareNextBill();
  }
  return true;
}

bool BillLines::voidBill() {
  std::vector<StockOutcome> refusals;
  const bool cancelled = guarded([&] {
    refusals = books_.cancel(*sale_.bill(), sale_.line());
    return true;
  });
  if (!cancelled) return false;
  sale_.setStatus({});
  sale_.clear();
  screen_.show(sale_.picture());
  checkout_.tell(refusals);
  return true;
}

// The row that goes is the current line's, also when the entry row below it is the selected one.
bool BillLines::DeleteCurrentLine() {
  if (sale_.line() == nullptr) {
    screen_.ShowMessage(sale_.isEmpty()
                            ? tr("没有商品，无需删除！")
                            : tr("没有可删除的行：已确认的商品不能单独删除，只能整单撤消。"));
    return true;
  }
  const Permit allowed = leave(Deed{Right::kDelete});
  if (!allowed) return false;
  guarded([this] {
    const StockOutcome stock = books_.remove(*sale_.line());
    if (!stock.done()) {
      screen_.ShowMessage(sale_texts::refusal(stock));
      return false;
    }
    sale_.remove();
    sale_.setStatus(sale_texts::removed(*sale_.bill(), sale_.figures()));
    return true;
  });
  return true;
}
