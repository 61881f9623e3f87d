#pragma once

#include "CheckoutFixture.h"
#include "returns/Returns.h"

/// The till with a settled bill: 3 x 10 at 0.9 sold under the code 6901 (two stock units each) and
/// 1 x 5 under A7, to the member of the fixture, paid with 32.
class ReturnsFixture : public CheckoutFixture {
 protected:
  static constexpr const char* kSoldBooks = "93 / 3x27,1x5 / 4 32 32 32 / - / 32 6";

  ReturnsFixture() {
    attachMember();
    enter("水", "10", 3, "6901", 0.9, 2);
    enter("茶", "5", 1, "A7");
    payCash("32");
    EXPECT_EQ(books(), kSoldBooks);
  }

  /// What a return touches: stock, the bill's lines, the bill, returns, member.
  std::string books() {
    return stored(
        "(select quantity from stock where spbm = '1001') || ' / ' ||"
        "(select group_concat(amount || 'x' || money) from sellProducts where sellId = 1) || ' / '"
        " || quantity || ' ' || goods_amount || ' ' || amount || ' ' || cash || ' / ' ||"
        "(select coalesce(group_concat(quantity || 'x' || money), '-') from un_sell) || ' / ' ||"
        "(select total_spent || ' ' || points from member) as v from sell where id = 1");
  }
};
