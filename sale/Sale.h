#pragma once

#include <QString>
#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

#include "sale/SalePicture.h"
#include "saleslib/BillBooks.h"

/// A bill's figures with its current line.
struct SaleFigures {
  double quantity = 0;
  Currency goods;                  ///< sum of the lines' amounts, before the shop's rounding
  std::int64_t originalPrice = 0;  ///< each line's price times its quantity, both in whole numbers
};

/// What the sale screen is in the middle of: the open bill with its committed lines, the current
/// line behind them, which can still be changed, and the entry row; the member; the bills put
/// aside; the cell that typing goes to, and what stands in it. Each step follows one of the books
/// (see BillBooks) that has succeeded, and leaves a sale whose rows are its lines and whose sums
/// are the bill's, or stops the program.
class Sale {
 public:
  using Bill = std::shared_ptr<ClsSell>;
  enum class Cell { kCode, kQuantity, kDiscount };

  Sale();

  // Steps of a bill

  /// An empty bill follows; the settled bill, if that was the one before, becomes the last one.
  void begin(Bill bill, const std::string& cashier);
  /// There is no bill, and the list is empty.
  void clear();
  /// A new current line, that left so much in stock; an entry row follows it.
  void ring(std::shared_ptr<ClsSellItem> line, double stock);
  /// The current line has been changed; back to the entry row.
  void correct(double stock);
  /// The current line becomes a committed one.
  void join();
  /// The current line goes.
  void remove();
  /// The bill is put aside, and an empty one follows.
  void hold(Bill next, const std::string& cashier);
  /// A held bill takes the place of the empty one; all its lines are committed.
  void recall(const BillBooks::Recalled& recalled, const std::string& cashier);
  /// These are the bills put aside.
  void keepHeld(std::vector<Bill> held) { held_ = std::move(held); }
  /// The bill is settled and stays on the screen until the next one begins.
  void settle(const QString& status);
  /// The member that counts for the bill, or none, with the lines that tell of it.
  void attach(std::shared_ptr<ClsMember> member, const QString& info);
  /// The bill that was settled last, by whichever till.
  void follow(Bill last);

  // The cell that typing goes to

  /// The entry row's code.
  void selectEntry();
  /// The same after a correction: all rows are numbered then, the entry row too, and the input line
  /// shows its number.
  void backToEntry();
  /// Up to the quantity of the current line; without one nothing changes.
  void selectLine();
  /// To the editable cell before or behind (-1, 1). False at the ends, where it stays.
  [[nodiscard]] bool selectCell(int step);
  Cell cell() const { return cell_; }
  bool onEntryRow() const { return !onLine_; }

  // The input line

  /// What stands in it before a key does anything: a value that was shown for correction goes.
  void type(const QString& shown);
  /// The next key empties the input line first.
  void replaceInput() { replaceInput_ = true; }
  void setInput(const QString& text);
  const QString& input() const { return input_; }

  void setStatus(const QString& text) { status_ = text; }
  /// The heading that tells of the bill before.
  void setPrevious(const QString& text) { title3_ = text; }

  // What there is

  ClsSell* bill() const { return bill_.get(); }
  ClsSellItem* line() const { return line_.get(); }
  ClsMember* member() const { return member_.get(); }
  std::shared_ptr<const ClsMember> sharedMember() const { return member_; }
  const Bill& last() const { return last_; }
  const std::vector<Bill>& held() const { return held_; }
  bool isEmpty() const { return !line_ && (!bill_ || bill_->Items().empty()); }
  /// Throws Overflow when they do not fit.
  SaleFigures figures() const { return figuresWith(line_.get()); }
  /// As they are with that one for the current line.
  SaleFigures figuresWith(const ClsSellItem* line) const;
  SalePicture picture() const;

 private:
  BillRow rowOf(const ClsSellItem& line, double stock) const;
  void addEntryRow();
  BillRow& lineRow();
  std::size_t selectedRow() const;
  BillRow::Column column() const;
  void place(bool onLine, Cell cell);
  void check() const;

  Bill bill_;
  std::shared_ptr<ClsSellItem> line_;
  std::shared_ptr<ClsMember> member_;
  Bill last_;
  std::vector<Bill> held_;  ///< in the order in which they were put aside

  std::vector<BillRow> rows_;
  bool onLine_ = false;  ///< the current line's row is selected, not the entry row
  Cell cell_ = Cell::kCode;
  QString input_;
  bool inputIsGiven_ = true, replaceInput_ = false;
  QString title1_, title3_, status_, memberInfo_;
};

/// The original-price figure of a bill's committed lines. It does not wrap; throws Overflow.
std::int64_t originalPrice(const ClsSell& bill);
