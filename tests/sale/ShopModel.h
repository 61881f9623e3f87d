#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

/// A plain model of a shop's books, for comparison with the data file: whole numbers only, and
/// nothing of the program's own. Money is in fen, quantities in tenths, factors in percent.
struct ShopModel {
  struct Line {
    std::string item;
    std::int64_t ratio, price, percent, quantity = 10;

    /// Rounded to the fen, halves away from zero.
    std::int64_t money() const { return (price * quantity * percent + 500) / 1000; }
  };
  struct Bill {
    std::int32_t number = 0;
    int member = -1;
    std::vector<Line> lines = {};

    std::int64_t money() const {
      std::int64_t sum = 0;
      for (const Line& line : lines) sum += line.money();
      return sum;
    }
  };
  struct Member {
    std::string card, password;
    std::int64_t percent, balance, spent = 0, points = 0;
  };

  bool mayGoNegative = true;
  std::map<std::string, std::int64_t> stock;
  std::vector<Member> members;
  Bill bill;                    ///< on the screen
  std::optional<Line> entered;  ///< its line that can still be changed
  std::vector<Bill> held, settled;
  std::int64_t paidByCard = 0, topUps = 0, credited = 0, returns = 0, returned = 0, refunded = 0,
               refusedAtRecall = 0;

  /// Takes that much of an item, or nothing when it is refused.
  bool take(const std::string& item, std::int64_t quantity) {
    if (!mayGoNegative && quantity > 0 && stock[item] < quantity) return false;
    stock[item] -= quantity;
    return true;
  }
  void putBack(const Line& line) { stock[line.item] += line.quantity * line.ratio; }

  bool empty() const { return bill.lines.empty() && !entered; }
  void commit() {
    if (entered) bill.lines.push_back(*entered);
    entered.reset();
  }
  void ring(const Line& line) {
    commit();
    if (take(line.item, line.quantity * line.ratio)) entered = line;
  }
  void correct(std::int64_t quantity) {
    if (take(entered->item, (quantity - entered->quantity) * entered->ratio))
      entered->quantity = quantity;
  }
  void drop() {
    if (entered) putBack(*entered);
    entered.reset();
  }
  void voidBill(Bill& open) {
    for (const Line& line : open.lines) putBack(line);
    open = {};
  }
  void suspend() {
    commit();
    held.push_back(std::move(bill));
    bill = {};
  }
  void recall(std::size_t position) {
    Bill taken = std::move(held[position]);
    held.erase(held.begin() + static_cast<std::ptrdiff_t>(position));
    for (const Line& line : taken.lines) putBack(line);
    bill = {taken.number, taken.member};
    for (const Line& line : taken.lines) {
      if (take(line.item, line.quantity * line.ratio)) {
        bill.lines.push_back(line);
      } else {
        ++refusedAtRecall;
      }
    }
  }
  void settle() {
    if (bill.member >= 0) {
      Member& member = members[static_cast<std::size_t>(bill.member)];
      member.spent += bill.money();
      member.points = halvesToEven(member.points * kPointUnit + bill.money(), kPointUnit);
    }
    settled.push_back(std::move(bill));
    bill = {};
  }
  /// Gives what is refunded for it: as much as it was sold for.
  std::int64_t takeBack(Bill& sold, Line& line, std::int64_t quantity) {
    const std::int64_t refund = (line.price * quantity * line.percent + 500) / 1000;
    line.quantity -= quantity;
    stock[line.item] += quantity * line.ratio;
    if (sold.member >= 0) members[static_cast<std::size_t>(sold.member)].spent -= refund;
    ++returns;
    returned += quantity;
    refunded += refund;
    return refund;
  }
  void topUp(Member& member, std::int64_t amount) {
    member.balance += amount;
    ++topUps;
    credited += amount;
  }

  static constexpr std::int64_t kPointUnit = 10000;  ///< fen for one point

  static std::int64_t halvesToEven(std::int64_t dividend, std::int64_t divisor) {
    const std::int64_t whole = dividend / divisor, twice = dividend % divisor * 2;
    return whole + (twice > divisor || (twice == divisor && whole % 2 != 0) ? 1 : 0);
  }
  /// A number of `scale`ths as the data file writes it.
  static std::string number(std::int64_t value, std::int64_t scale) {
    const bool negative = value < 0;
    if (negative) value = -value;
    std::string text = std::to_string(value / scale);
    if (value % scale != 0) {
      text += "." + std::to_string(scale + value % scale).substr(1);
      while (text.back() == '0') text.pop_back();
    }
    return negative ? "-" + text : text;
  }
};
