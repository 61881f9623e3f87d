#include "sale/Sale.h"

#include <QCoreApplication>
#include <algorithm>
#include <utility>

#include "base/Failure.h"
#include "base/NumberText.h"
#include "platform/QtText.h"
#include "sale/SaleTexts.h"

namespace {

[[noreturn]] void tooLarge() {
  throw Overflow(QCoreApplication::translate("Sale", "原价合计太大，无法计算。").toStdString());
}

void add(std::int64_t& sum, const ClsSellItem& line) {
  std::int64_t product = 0;
  const std::int64_t price = wholeHalfEven(roundedToFen(line.Price()));
  if (__builtin_mul_overflow(price, wholeHalfEven(line.Quantity()), &product) ||
      __builtin_add_overflow(sum, product, &sum)) {
    tooLarge();
  }
}

}  // namespace

std::int64_t originalPrice(const ClsSell& bill) {
  std::int64_t sum = 0;
  for (const auto& line : bill.Items()) add(sum, *line);
  return sum;
}

Sale::Sale() {
  addEntryRow();
}

void Sale::begin(Bill bill, const std::string& cashier) {
  ensure(bill && bill->State() == 0 && bill->Items().empty(), "an empty open bill begins");
  clear();
  bill_ = std::move(bill);
  title1_ = sale_texts::billTitle(*bill_, cashier);
  replaceInput_ = false;
  check();
}

void Sale::clear() {
  bill_ = nullptr;
  line_ = nullptr;
  attach(nullptr, {});
  rows_.clear();
  addEntryRow();
  selectEntry();
  check();
}

void Sale::ring(std::shared_ptr<ClsSellItem> line, double stock) {
  ensure(bill_ && !line_ && !onLine_, "a line is rung in the entry row, with no other one open");
  ensure(line && line->BillNo() == bill_->BillNo() && line->Id() != 0, "it is the bill's, stored");
  line_ = std::move(line);
  rows_.back() = rowOf(*line_, stock);
  rows_.back().cells[BillRow::kNumber] = std::to_string(rows_.size());
  addEntryRow();
  selectEntry();
  check();
}

void Sale::correct(double stock) {
  ensure(line_ != nullptr, "only the current line is changed");
  const auto row = rows_.end() - 2;
  *row = rowOf(*line_, stock);
  row->cells[BillRow::kNumber] = std::to_string(rows_.size() - 1);
  backToEntry();
  check();
}

void Sale::join() {
  ensure(bill_ && line_, "only a current line joins the bill");
  bill_->AddItem(std::exchange(line_, nullptr));
  if (onLine_) selectEntry();
  check();
}

void Sale::remove() {
  ensure(line_ != nullptr, "only the current line is removed");
  line_ = nullptr;
  rows_.erase(rows_.end() - 2);
  rows_.back().cells[BillRow::kNumber].clear();
  selectEntry();
  check();
}

void Sale::hold(Bill next, const std::string& cashier) {
  ensure(bill_ && !line_ && !isEmpty(), "a bill with all its lines is put aside");
  held_.push_back(bill_);
  status_.clear();
  begin(std::move(next), cashier);
}

void Sale::recall(const BillBooks::Recalled& recalled, const std::string& cashier) {
  const auto held = std::find_if(held_.begin(), held_.end(), [&](const Bill& bill) {
    return bill->BillNo() == recalled.bill->BillNo();
  });
  ensure(held != held_.end() && isEmpty(), "a held bill takes the place of an empty one");
  ensure(recalled.stock.size() == recalled.bill->Items().size(), "each line has a stock figure");
  held_.erase(held);
  clear();
  bill_ = recalled.bill;
  rows_.clear();
  for (std::size_t i = 0; i < recalled.stock.size(); ++i) {
    rows_.push_back(rowOf(*bill_->Items()[i], recalled.stock[i]));
    rows_.back().cells[BillRow::kNumber] = std::to_string(i + 1);
  }
  addEntryRow();
  selectEntry();
  title1_ = sale_texts::billTitle(*bill_, cashier);
  status_ = sale_texts::recalled(*bill_);
  check();
}

void Sale::settle(const QString& status) {
  ensure(bill_ && !line_ && bill_->State() == 1, "a settled bill has all its lines");
  last_ = bill_;
  status_ = status;
  check();
}

void Sale::follow(Bill last) {
  ensure(!last || last->State() == 1, "the bill before is a settled one");
  last_ = std::move(last);
}

void Sale::attach(std::shared_ptr<ClsMember> member, const QString& info) {
  ensure(!member || (bill_ && bill_->MemberId() == member->Id()), "the bill keeps its member");
  member_ = std::move(member);
  memberInfo_ = info;
}

void Sale::selectEntry() {
  place(false, Cell::kCode);
}

void Sale::backToEntry() {
  rows_.back().cells[BillRow::kNumber] = std::to_string(rows_.size());
  selectEntry();
}

void Sale::selectLine() {
  if (line_) place(true, Cell::kQuantity);
}

bool Sale::selectCell(int step) {
  const int next = static_cast<int>(cell_) + step;
  if (next < static_cast<int>(Cell::kCode) || next > static_cast<int>(Cell::kDiscount))
    return false;
  place(onLine_, static_cast<Cell>(next));
  return true;
}

// The cell's text comes into the input line, and the first key replaces it.
void Sale::place(bool onLine, Cell cell) {
  onLine_ = onLine;
  cell_ = cell;
  setInput(qtText(rows_[selectedRow()].cells[column()]));
  replaceInput_ = true;
}

void Sale::type(const QString& shown) {
  input_ = shown;
  inputIsGiven_ = false;
  if (std::exchange(replaceInput_, false)) input_.clear();
}

void Sale::setInput(const QString& text) {
  input_ = text;
  inputIsGiven_ = true;
}

SaleFigures Sale::figuresWith(const ClsSellItem* line) const {
  ensure(bill_ != nullptr, "figures are a bill's");
  SaleFigures figures{bill_->Quantity(), bill_->GoodsAmount(), ::originalPrice(*bill_)};
  if (line == nullptr) return figures;
  figures.quantity = roundedQuantity(figures.quantity + line->Quantity());
  figures.goods += line->Money();
  add(figures.originalPrice, *line);
  return figures;
}

SalePicture Sale::picture() const {
  SalePicture picture{.rows = rows_,
                      .row = static_cast<int>(selectedRow()),
                      .column = column(),
                      .lastColumn = column(),
                      .input = input_,
                      .inputIsGiven = inputIsGiven_,
                      .title1 = title1_,
                      .title3 = title3_,
                      .status = status_,
                      .memberInfo = memberInfo_};
  // A barcode needs more room than the row's number, and the cell of its code is still empty.
  if (!onLine_ && cell_ == Cell::kCode) picture.lastColumn = BillRow::kCode;
  return picture;
}

BillRow Sale::rowOf(const ClsSellItem& line, double stock) const {
  return {
      {"", line.EntryCode(), line.SpName(), twoDecimals(line.Price()),
       generalNumber(line.Quantity()), generalNumber(line.Discount()), twoDecimals(line.Money()),
       generalNumber(roundedQuantity(stock + 1)), line.Origin(), line.Unit(), line.SpCode()},
      &line};
}

void Sale::addEntryRow() {
  rows_.emplace_back();
}

std::size_t Sale::selectedRow() const {
  ensure(rows_.size() > (onLine_ ? 1 : 0), "the selected row is there");
  return rows_.size() - (onLine_ ? 2 : 1);
}

BillRow::Column Sale::column() const {
  if (cell_ == Cell::kQuantity) return BillRow::kQuantity;
  return cell_ == Cell::kDiscount ? BillRow::kDiscount : BillRow::kNumber;
}

void Sale::check() const {
  const std::size_t committed = bill_ ? bill_->Items().size() : 0;
  ensure(bill_ || (!line_ && !member_), "without a bill there is neither line nor member");
  ensure(rows_.size() == committed + (line_ ? 2 : 1), "each line has a row, and the entry row");
  for (std::size_t i = 0; i < committed; ++i) {
    ensure(rows_[i].line == bill_->Items()[i].get(), "the rows are the bill's lines, in order");
  }
  if (line_) ensure(rows_[committed].line == line_.get(), "the last one shows the current line");
  ensure(rows_.back().line == nullptr, "the entry row shows no line");
  ensure(!onLine_ || line_, "only the current line is selected for a change");
  ensure(!bill_ || bill_->AddsUp(), "the bill's sums are its lines'");
}
