#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "base/Currency.h"
#include "base/DateTime.h"
#include "saleslib/ClsSellItem.h"
#include "saleslib/Export.h"
#include "saleslib/Tenders.h"

class Connection;
class Row;
class Rows;

/// One bill. Amount and Quantity are sums over the committed lines until the settlement writes the
/// rounded amount due; a line that then joins or leaves an open bill makes them sums again.
class TESSALY_API ClsSell {
 public:
  using Items_t = std::vector<std::shared_ptr<ClsSellItem>>;

  /// Binds. Bill number 0 starts a new open bill of that operator: its row, number and time are
  /// stored at once; false when the operator was removed. Otherwise loads the stored bill; false
  /// when there is none. Throws StoreError.
  [[nodiscard]] bool Open(Connection& connection, std::int32_t billNo, std::int32_t operatorId,
                          const Clock& clock = localTime);
  /// Loads the member's latest settled bill; false when there is none.
  [[nodiscard]] bool OpenLastOfMember(Connection& connection, std::int32_t memberId);
  /// From a row of sell, without its lines.
  static std::shared_ptr<ClsSell> fromRow(Connection& connection, const Row& row);

  /// Stores the bill's row and those of its lines that have something to write, in one transaction,
  /// after checking that the lines add up to its quantity and, before the shop's rounding, to its
  /// amount (ensure; a bill that was opened by its number needs LoadLines first). False when the
  /// store failed; ErrText has the reason, nothing was written, and a second Save writes it all.
  [[nodiscard]] bool Save();
  /// Payment is taken for this open bill (ensure): as Save, with a mark in the row that lasts until
  /// Save stores the bill as settled or Void deletes it. A bill found with the mark was paid for
  /// and is to be settled, never voided. When false, the bill is not marked.
  [[nodiscard]] bool SavePaid();
  /// Deletes the bill with its lines, in one transaction; the caller has put the stock back.
  void Void();
  /// Loads the lines of a stored bill into Items, in entry order. An open bill's quantity and
  /// amount are worked out from them; a settled or paid bill whose lines do not add up to it throws
  /// StoreError, naming the bill: the data file is damaged.
  void LoadLines();
  /// Adds a committed line of this bill (ensure): quantity and amount are the sums over its lines
  /// again, whatever the settlement rounded the amount to before.
  void AddItem(std::shared_ptr<ClsSellItem> line);
  /// Takes a line (ensure: one of its own) off an open bill; quantity and amount follow. The line's
  /// row is the caller's.
  void RemoveItem(const ClsSellItem& line);
  /// Works quantity and amount out again from the lines, after one of them was changed. Save wants
  /// that (see there).
  void Recalculate();

  std::int32_t BillNo() const { return billNo_; }
  Currency Amount() const { return amount_; }  ///< amount due
  void setAmount(Currency amount) { amount_ = amount; }
  /// What of each kind the bill is settled with.
  Currency Tendered(Tender tender) const { return tendered_[static_cast<std::size_t>(tender)]; }
  void setTendered(Tender tender, Currency amount) {
    tendered_[static_cast<std::size_t>(tender)] = amount;
  }
  Currency Cash() const { return Tendered(Tender::kCash); }
  void setCash(Currency cash) { setTendered(Tender::kCash, cash); }
  /// When the bill was made: opened, and from its first line on the time that line was entered, so
  /// that the first sale of a morning is not dated back to the evening before, when its bill was
  /// opened. It never moves back: a bill that was open when the clock was set back shows that.
  DateTime SellTime() const { return sellTime_; }
  const Items_t& Items() const { return items_; }
  std::int32_t OperatorId() const { return operatorId_; }
  double Quantity() const { return quantity_; }
  std::int32_t MemberId() const { return memberId_; }  ///< 0 for none
  void setMemberId(std::int32_t memberId) { memberId_ = memberId; }
  /// 0 open, 1 settled (ensure: nothing else).
  std::int16_t State() const { return state_; }
  void setState(std::int16_t state);
  bool Paid() const { return paid_ && state_ == kOpen; }  ///< has the mark of SavePaid
  /// Discount amount given at settlement.
  Currency Favorable() const { return Tendered(Tender::kFavorable); }
  void setFavorable(Currency favorable) { setTendered(Tender::kFavorable, favorable); }
  std::int16_t Salesman() const { return salesman_; }
  void setSalesman(std::int16_t salesman) { salesman_ = salesman; }
  Currency BankCard() const { return Tendered(Tender::kBankCard); }
  void setBankCard(Currency amount) { setTendered(Tender::kBankCard, amount); }
  Currency CardPay() const { return Tendered(Tender::kStoredCard); }
  void setCardPay(Currency amount) { setTendered(Tender::kStoredCard, amount); }
  const std::string& CardNo() const { return cardNo_; }
  void setCardNo(std::string number) { cardNo_ = std::move(number); }
  /// The code on the payer's slip, as slipCode makes it (ensure); empty for none.
  const std::string& Slip() const { return slip_; }
  void setSlip(std::string code);
  const std::string& ErrText() const { return errText_; }

  /// Whether the lines add up to quantity and goods amount, which Save wants (see there).
  [[nodiscard]] bool AddsUp() const;
  /// Sum of the lines' amounts, before the shop's rounding.
  Currency GoodsAmount() const { return goodsAmount_; }
  /// All that the bill is settled with - amount due. Throws Overflow.
  Currency Change() const;
  /// Whether all that screens and receipts work out from the payment fits. A data file may hold
  /// settled bills of which it does not.
  [[nodiscard]] bool FiguresFit() const;

 private:
  static constexpr std::int16_t kOpen = 0, kSettled = 1;

  bool start(std::int32_t operatorId);
  bool load(Rows rows);
  void read(const Row& row);
  void store();

  Connection* connection_ = nullptr;
  Clock clock_ = localTime;
  std::int32_t billNo_ = 0;
  std::int32_t operatorId_ = 0;
  DateTime sellTime_;
  std::int16_t state_ = 0, salesman_ = 0;
  bool paid_ = false;
  std::int32_t memberId_ = 0;
  double quantity_ = 0;
  Currency goodsAmount_, amount_;
  std::array<Currency, kTenders> tendered_;
  std::string cardNo_, slip_, errText_;
  Items_t items_;
};
