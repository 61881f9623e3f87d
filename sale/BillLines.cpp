#include "sale/BillLines.h"

#include <algorithm>

#include "app/posMod.h"
#include "base/Failure.h"
#include "base/NumberText.h"
#include "base/Text.h"
#include "checkout/AmountDue.h"
#include "checkout/BillStock.h"
#include "checkout/Checkout.h"
#include "checkout/CurrentLine.h"
#include "checkout/FigureCheck.h"
#include "checkout/LineReceipt.h"
#include "checkout/SaleScreen.h"
#include "checkout/SaleState.h"
#include "devices/Devices.h"
#include "sale/EditedCell.h"
#include "sale/ItemLookup.h"
#include "sale/LineRow.h"
#include "sale/OriginalPrice.h"
#include "store/Transaction.h"

namespace {

constexpr std::size_t kLongestShortCode = 5;
constexpr std::size_t kShortestCode = 2;

// A code typed with the input method left on comes in full-width letters and digits. Texts with
// Chinese characters stay as typed, since they are looked for in names as these are written.
QString codeOf(const QString& typed) {
  const std::string folded = halfWidth(typed.toStdString());
  const bool plain = std::all_of(folded.begin(), folded.end(),
                                 [](char c) { return static_cast<unsigned char>(c) < 0x80; });
  return plain ? QString::fromStdString(folded) : typed;
}

bool isBarcode(const QString& typed) {
  return characters(typed.toStdString()) > kLongestShortCode;
}

QString text(const std::string& utf8) {
  return QString::fromStdString(utf8);
}

}  // namespace

/// What the screen shows of the current line once it is stored.
struct BillLines::Shown {
  BillRow row;
  std::int64_t originalPrice;
  QString status;
  bool isNew = false;  ///< an entry row is to follow it
};

BillLines::BillLines(posMod& pos, SaleState& state, SaleScreen& screen, EditedCell& cell,
                     ItemLookup& lookup, Checkout& checkout, Devices& devices, LineReceipt& receipt)
    : pos_(pos),
      state_(state),
      screen_(screen),
      cell_(cell),
      lookup_(lookup),
      checkout_(checkout),
      devices_(devices),
      receipt_(receipt) {}

void BillLines::Enter() {
  const QString typed = screen_.input();
  const std::size_t length = characters(typed.toStdString());
  if (length == 0) {
    checkout_.SettleBill();
  } else if (state_.onEntryRow) {
    if (length >= kShortestCode) enterGoods(typed);
  } else if (isBarcode(typed)) {
    dropWhileEditing(typed);
  } else if (state_.editCol == 2) {
    changeQuantity(typed);
  } else if (state_.editCol == 3) {
    changeDiscount(typed);
  }
}

void BillLines::EnterQuickKey(const QString& itemCode) {
  if (!state_.onEntryRow) {
    dropWhileEditing(itemCode);
  } else if (characters(itemCode.toStdString()) < kShortestCode) {
    notFound(itemCode);
  } else {
    enterGoods(itemCode);
  }
}

void BillLines::enterGoods(const QString& typed) {
  if (state_.curLine) commitCurrentLine(state_, receipt_);
  const QString code = codeOf(typed);
  const bool found = isBarcode(typed) ? lookup_.LookupBarcode(code)
                                      : lookup_.LookupSpec(code) || lookup_.LookupItemNo(code);
  found ? ringUp() : notFound(typed);
}

// Goods are not rung before the change of the line is finished.
void BillLines::dropWhileEditing(const QString& code) {
  screen_.setInput({});
  ShowLine(false);
  returnToEntryRow();
  screen_.ShowMessage(tr("正在修改商品行，“%1”没有录入。请重新录入。").arg(code));
}

// The input line is emptied too when the line was refused: the next scan must not be appended.
void BillLines::ringUp() {
  state_.curLine->setQuantity(1);
  if (!ShowLine(true)) screen_.setInput({});
}

void BillLines::notFound(const QString& code) {
  const QString before = isBarcode(code) ? tr("没有找到条码为：") : tr("没有找到：");
  screen_.ShowMessage(before + code + tr("的商品"));
  screen_.setInput({});
}

void BillLines::changeQuantity(const QString& typed) {
  const auto quantity = parseNumber(typed.toStdString());
  if (!quantity) {
    screen_.setInput({});
    return;
  }
  ClsSellItem& line = *state_.curLine;
  const double before = line.Quantity();
  if (*quantity != before) {
    line.setQuantity(*quantity);
    auto changed = store(roundedQuantity((*quantity - before) * line.Ratio()));
    if (!changed) {
      line.setQuantity(before);
      screen_.setInput(text(generalNumber(before)));
      return;
    }
    show(std::move(*changed));
  }
  returnToEntryRow();
}

void BillLines::changeDiscount(const QString& typed) {
  const auto factor = parseNumber(typed.toStdString());
  if (!factor || *factor < 0 || !FigureCheck(pos_.gSysParam, screen_).discount(Discount(*factor))) {
    screen_.setInput({});
    return;
  }
  ClsSellItem& line = *state_.curLine;
  const Discount before = line.Discount();
  line.setDiscount(Discount(*factor));
  if (!RefreshLine()) {
    line.setDiscount(before);
    screen_.setInput({});
    return;
  }
  returnToEntryRow();
}

void BillLines::returnToEntryRow() {
  numberRows();
  cell_.toEntryRow();
}

void BillLines::numberRows() {
  int position = 0;
  for (BillRow& row : state_.rows) row.cells[BillRow::kNumber] = std::to_string(++position);
}

bool BillLines::ShowLine(bool takeStock) {
  if (!state_.curLine) return false;
  auto stored = store(takeStock ? state_.curLine->StockQuantity() : 0);
  if (!stored) {
    if (takeStock) state_.curLine = nullptr;
    return false;
  }
  stored->isNew = takeStock;
  show(std::move(*stored));
  return true;
}

bool BillLines::RefreshLine() {
  return ShowLine(false);
}

std::optional<BillLines::Shown> BillLines::store(double taken) {
  Shown shown;
  const bool stored = guarded([&] {
    return moveStock(taken, [&] {
      state_.curLine->Save();
      shown = shownLine();
    });
  });
  if (!stored) return std::nullopt;
  return shown;
}

// The row comes first: it is what the cashier waits for, and the display may be slow.
void BillLines::show(Shown shown) {
  state_.rows[static_cast<std::size_t>(state_.selected)].cells = std::move(shown.row.cells);
  state_.origTotal = shown.originalPrice;
  if (shown.isNew) state_.AddEntryRow();
  screen_.rowsChanged();
  if (shown.isNew) screen_.PlaceEditor();
  screen_.setStatus(shown.status);
  devices_.display().clientView(state_.curLine->Price(), CustomerDisplay::kPrice);
}

bool BillLines::guarded(const std::function<bool()>& work) {
  try {
    return work();
  } catch (const Failure& failure) {
    screen_.messageBox(text(failure.what()));
    return false;
  }
}

bool BillLines::moveStock(double taken, const std::function<void()>& write) {
  const std::string& itemCode = state_.curLine->SpCode();
  if (taken > 0) return TakeStock(pos_, screen_, itemCode, taken, write);
  if (taken < 0) return ReturnStock(pos_, screen_, itemCode, -taken, write);
  Transaction storing(*pos_.gConn);
  write();
  storing.commit();
  return true;
}

BillLines::Shown BillLines::shownLine() const {
  Shown shown{.row = lineRow(*pos_.gConn, *state_.curLine, state_.rows.size()),
              .originalPrice = 0,
              .status = {}};
  shown.originalPrice = originalPrice(state_.rows, state_.selected, shown.row);
  shown.status = statusText(shown.originalPrice);
  return shown;
}

QString BillLines::statusText(std::int64_t figure) const {
  const ClsSell& bill = *state_.curBill;
  const ClsSellItem& line = *state_.curLine;
  Currency due = bill.GoodsAmount() + line.Money();
  const std::string dueText = myCStr(due, pos_.gSysParam);
  return text(generalNumber(roundedQuantity(bill.Quantity() + line.Quantity()))) +
         tr("件商品，原价合计") + QString::number(figure) + tr("   合计") + text(dueText) +
         tr("元");
}

void BillLines::CancelBill() {
  receipt_.FeedLines(*state_.curBill);
  if (state_.curBill->Items().empty() && !state_.curLine) {
    screen_.ShowMessage(tr("没有商品，无需删除！"));
    return;
  }
  const bool voided = guarded([this] {
    Transaction cancelling(*pos_.gConn);
    VoidBill(pos_, screen_, *state_.curBill);
    if (state_.curLine) {
      const double taken = state_.curLine->StockQuantity();
      if (!moveStock(-taken, [this] { state_.curLine->Delete(); })) return false;
    }
    cancelling.commit();
    return true;
  });
  if (!voided) return;
  state_.curLine = nullptr;
  state_.origTotal = 0;
  screen_.setStatus({});
  state_.clearRows();
  checkout_.PrepareNextBill();
}

// The row that goes is the current line's, also when the entry row below it is the selected one.
void BillLines::DeleteCurrentLine() {
  if (!state_.curLine) {
    screen_.ShowMessage(state_.curBill->Items().empty()
                            ? tr("没有商品，无需删除！")
                            : tr("没有可删除的行：已确认的商品不能单独删除，只能整单撤消。"));
    return;
  }
  const bool deleted = guarded([this] {
    return moveStock(-state_.curLine->StockQuantity(), [this] { state_.curLine->Delete(); });
  });
  if (!deleted) return;
  const int row = state_.onEntryRow ? state_.selected - 1 : state_.selected;
  state_.rows.erase(state_.rows.begin() + row);
  state_.curLine = nullptr;
  state_.rows.back().cells[BillRow::kNumber].clear();
  state_.origTotal = originalPrice(state_.rows);
  screen_.setStatus(text(generalNumber(state_.curBill->Quantity())) + tr("件商品，原价总计") +
                    QString::number(state_.origTotal) + tr("合计") +
                    text(generalNumber(state_.curBill->Amount())) + tr("元"));
  cell_.toEntryRow();
}
