#pragma once

#include <string>
#include <vector>

#include "saleslib/BillAuthority.h"
#include "saleslib/ReturnedLine.h"
#include "sync/ShopCalls.h"

/// What a till asks the shop's server about bills of several tills, one function of its each
/// (server/). Line and answer have that patience together.
class BillCalls {
 public:
  using Reply = BillAuthority::Reply;
  using Milliseconds = ServerLine::Milliseconds;

  /// The calls' line outlives these.
  BillCalls(ShopCalls& calls, Milliseconds patience) : calls_(calls), patience_(patience) {}

  BillAuthority::ReturnAnswer takeBack(const BillAuthority::Return& wanted);
  BillAuthority::BillAnswer bill(std::int64_t number);

  struct Held {
    Reply reply = Reply::kNone;
    std::vector<BillAuthority::HeldBill> bills = {};
  };
  Held heldElsewhere();

  struct Wish {
    Reply reply = Reply::kNone;
    bool isWaiting = false;  ///< the till that has it was not heard yet
    std::string basket = {};
  };
  Wish want(const std::string& key, int till, std::int64_t bill);

  // What the program beside the till asks

  /// All that the till holds (heldBaskets).
  ServerAnswer hold(const std::string& baskets);
  struct Errand {
    bool isWanted = false;  ///< that bill, by that till; else its basket is given up to this one
    std::string key;
    int till = 0;
    std::int64_t bill = 0;
    std::string basket = {};
  };
  struct Errands {
    bool isAnswered = false;
    std::vector<Errand> all = {};
  };
  Errands errands();
  struct Returned {
    bool isAnswered = false;
    std::vector<ReturnElsewhere> all = {};
  };
  Returned returnedElsewhere();

 private:
  ServerAnswer ask(const char* statement, ServerAnswer::Row values = {});

  ShopCalls& calls_;
  Milliseconds patience_;
};
