#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "base/Currency.h"
#include "base/DateTime.h"
#include "saleslib/ClsMember.h"
#include "saleslib/ClsOperator.h"
#include "saleslib/ClsSell.h"
#include "saleslib/ClsUnSell.h"
#include "saleslib/Export.h"

class BillAuthority;
class Connection;
class SharedReturn;

/// The books of returns, kept by one operator: goods that come back against a settled bill. A
/// broken store throws StoreError.
class TESSALY_API ReturnBooks {
 public:
  /// Connection and whoever decides about bills of several tills outlive the books; without one the
  /// data file decides. `mayGoUnanswered`: the shop's OfflineReturn. There is an operator (ensure).
  ReturnBooks(Connection& connection, Clock clock, std::shared_ptr<const ClsOperator> taker,
              BillAuthority* shop = nullptr, bool mayGoUnanswered = false);

  struct Found {
    enum Kind { kSettled, kOpen, kUnknown, kDamaged, kElsewhere, kNoAnswer };
    Kind kind = kUnknown;
    std::shared_ptr<ClsSell> bill = {};  ///< a settled one, with its lines; else none
    std::string damage = {};             ///< for people
    int till = 0;  ///< of a bill that is another till's and can't be had (kElsewhere, kNoAnswer)
  };
  /// The stored bill of that number, which is more than 0 (ensure); in a shop of several tills also
  /// another till's, as the server has it.
  [[nodiscard]] Found find(std::int32_t billNo) const;
  /// Who sold; without a name when that operator was removed.
  ClsOperator cashierOf(const ClsSell& bill) const;
  /// Empty without a member, or when the member is gone.
  ClsMember memberOf(const ClsSell& bill) const;
  /// What came back of that line before.
  std::vector<ClsUnSell::Earlier> earlier(const ClsSellItem& line) const;

  struct Outcome {
    enum Kind {
      kDone,
      kNothingHeld,
      kRefused,
      kNoAnswer,  ///< the server's: bill and line are as they were
    };
    Kind kind = kDone;
    std::string why = {};  ///< of the last two, for people
  };
  /// Takes that much of a line of the bill (ensure) back for that refund: return record, stock,
  /// line, bill and member, in one transaction. The record is limited to what the line still holds,
  /// and everything else follows the record. In a shop of several tills the server is asked first;
  /// of another till's bill only return record and stock are this till's. When it is refused or
  /// fails, nothing is written, but bill and line at hand may have been changed: what counts is
  /// what find gives.
  [[nodiscard]] Outcome takeBack(ClsSell& bill, ClsSellItem& line, double quantity,
                                 Currency refund);

 private:
  Found missing(std::int32_t billNo) const;
  bool isHere(const ClsSell& bill) const;
  Outcome takeBackAsked(ClsSell& bill, ClsSellItem& line, double quantity, Currency refund);
  Outcome store(ClsSell& bill, ClsSellItem& line, double quantity, Currency refund,
                SharedReturn* asked);
  void storeHere(const ClsUnSell& returned, ClsSell& bill, ClsSellItem& line,
                 const std::string& key);
  void storeElsewhere(const ClsUnSell& returned, ClsSell& bill, ClsSellItem& line,
                      const std::string& key);
  ClsUnSell record(const ClsSell& bill, const ClsSellItem& line, double quantity, Currency refund);

  Connection& connection_;
  Clock clock_;
  std::shared_ptr<const ClsOperator> taker_;
  BillAuthority* shop_;
  bool mayGoUnanswered_;
};
