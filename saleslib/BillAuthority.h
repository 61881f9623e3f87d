#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "saleslib/Export.h"

/// Who decides in a shop of several tills about what more than one till has to do with: goods that
/// come back against a bill, and bills that were put aside. A till of its own has none, and its
/// data file decides. Each question waits two seconds at most, and throws nothing for a server that
/// is away.
class TESSALY_API BillAuthority {
 public:
  BillAuthority() = default;
  BillAuthority(const BillAuthority&) = delete;
  BillAuthority& operator=(const BillAuthority&) = delete;
  virtual ~BillAuthority() = default;

  /// The server is known to be away: a question would be answered by nobody.
  virtual bool isAway() const = 0;
  /// The number of the journal's last entry that the server is known to have; the highest there is
  /// when nothing is known, for then it may have them all.
  virtual std::int64_t atServer() const = 0;

  enum class Reply {
    kDone,
    kTooMuch,  ///< the line does not hold so much
    kUnknown,  ///< the server does not know the bill, or has it no more
    kAway,     ///< the till that holds the bill is away
    kNone,     ///< nobody knows whether it is done
  };

  struct Return {
    std::string key;  ///< no two returns of a till have the same
    std::int64_t bill = 0, line = 0;
    double quantity = 0;
  };
  struct ReturnAnswer {
    Reply reply = Reply::kNone;
    double holds = 0;  ///< what the line holds now, unless the reply is kUnknown or kNone
  };
  /// Takes so much off what the line still holds, or nothing; once however often it is asked for
  /// under that key.
  virtual ReturnAnswer takeBack(const Return& wanted) = 0;

  struct BillAnswer {
    Reply reply = Reply::kNone;
    /// The bill as its till noted it (JSON, billRecord), the lines with what they still hold.
    std::string record = {};
  };
  /// A settled bill of any till, to be looked at.
  virtual BillAnswer bill(std::int64_t number) = 0;

  struct HeldBill {
    int till = 0;
    std::int64_t bill = 0;
    std::string basket;  ///< JSON, see saleslib/Basket.h
  };
  /// What the other tills hold; nothing when there is no answer.
  virtual std::vector<HeldBill> heldElsewhere() = 0;

  struct HandOver {
    Reply reply = Reply::kNone;
    std::string basket = {};  ///< of kDone: nobody else has it any more
  };
  /// Asks the till that holds the bill to give it up. Whatever is not handed over in time may come
  /// later, and is then found among what this till holds.
  virtual HandOver handOver(const std::string& key, int till, std::int64_t bill) = 0;
};
