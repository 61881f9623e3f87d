#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <string>

#include "base/DateTime.h"

class Connection;
class Row;

/// Where a report's figures come from. Rows have the columns of the data file's tables; all of it
/// throws StoreError or Failure when it cannot be read.
class TakingsSource {
 public:
  /// false stops the reading.
  using Taker = std::function<bool(const Row&)>;

  virtual ~TakingsSource() = default;

  /// The settled bills of that time in the order of their times, each with its lines one after the
  /// other as returns have left them: of `sell` id, sell_time, operator_id, quantity, amount,
  /// goods_amount and the tenders' columns, of `sellProducts` ratio (null in a bill without lines),
  /// bm, name, splbmc, money, in_price, discount, price, and its amount as line_quantity; where
  /// there are several tills, till. False when it was stopped.
  [[nodiscard]] virtual bool sold(const DateTime& from, const DateTime& until,
                                  const Taker& taker) = 0;
  /// The returns of that time: of `un_sell` quantity, ratio, money, operator_id, of the line bm and
  /// name.
  virtual void returned(const DateTime& from, const DateTime& until, const Taker& taker) = 0;
  /// The shop's goods: f_spbm, f_spmc, f_splbmc, f_zhjj, and quantity in stock, null where none is
  /// kept. False when it was stopped.
  [[nodiscard]] virtual bool goods(const Taker& taker) = 0;
  /// What an item is called by now; empty when it is no longer among the shop's goods.
  virtual std::string goodsName(const std::string& code) = 0;
  virtual std::map<std::int64_t, std::string> operatorNames() = 0;
  virtual std::string shopName() = 0;
  /// Whether sold bills say at which till.
  virtual bool hasTills() const { return false; }
};

/// A till's data file.
class FileTakings : public TakingsSource {
 public:
  /// The connection outlives this.
  explicit FileTakings(Connection& file) : file_(file) {}

  [[nodiscard]] bool sold(const DateTime& from, const DateTime& until, const Taker& taker) override;
  void returned(const DateTime& from, const DateTime& until, const Taker& taker) override;
  [[nodiscard]] bool goods(const Taker& taker) override;
  std::string goodsName(const std::string& code) override;
  std::map<std::int64_t, std::string> operatorNames() override;
  std::string shopName() override;

 private:
  Connection& file_;
};
