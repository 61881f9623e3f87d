#pragma once

#include <set>
#include <string>

#include "Hands.h"
#include "ShopFixture.h"
#include "saleslib/StaffCard.h"

/// The shop asks for approvals: operator 1 is at the till with these rights, and operator 2 has
/// those, the password 222 and the card ";9002?".
inline void askForApprovals(posMod& pos, const std::set<std::string>& cashier,
                            const std::set<std::string>& approver) {
  EXPECT_EQ(pos.gSysParam.set("Approval", "1"), "");
  ClsOperator second;
  second.Init(*pos.gConn, 2);
  second.setPassword("222");
  second.setRights(ClsRights(approver));
  second.Save();
  EXPECT_TRUE(giveStaffCard(*pos.gConn, 2, ";9002?"));
  pos.gOperator->setRights(ClsRights(cashier));
}

/// How somebody answers the question for an approval.
inline constexpr const char* kApproves = "2\n222\n";
inline constexpr const char* kSwipes = ";9002?\n";
inline constexpr const char* kGivesUp = "2\n22⎋";
