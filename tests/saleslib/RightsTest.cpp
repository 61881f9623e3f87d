#include "Shop.h"
#include "base/NumberText.h"
#include "saleslib/ClsSysParam.h"
#include "saleslib/Identification.h"
#include "saleslib/LoginBrake.h"
#include "saleslib/Permission.h"
#include "saleslib/StaffCard.h"

using testing::Pair;

class RightsTest : public Shop {
 protected:
  RightsTest() {
    rules.Conn(connection);
    cashier.Init(connection, 1);
    approver->Init(connection, 2);
    approver->setName("李四");
    approver->setPassword("222");
    approver->setRights(ClsRights({"return:200", "drawer"}));
    approver->Save();
  }

  ClsSysParam rules;
  ClsOperator cashier;
  std::shared_ptr<ClsOperator> approver = std::make_shared<ClsOperator>();
  int asked = 0;
  const Permission::Ask ask = [this](const Deed&) {
    ++asked;
    return approver;
  };
};

TEST_F(RightsTest, ARightIsAKeyAndALimitThatItsKindHas) {
  const std::pair<const char*, const char*> texts[] = {{"Drawer", "drawer"},
                                                       {"discount:10.50", "discount:10.5"},
                                                       {"RETURN:０.5", "return:0.5"},
                                                       {"discount:100", "discount:100"},
                                                       {"discount:101", "-"},
                                                       {"return:101", "return:101"},
                                                       {"return:0", "-"},
                                                       {"drawer:1", "-"},
                                                       {"discount:", "-"},
                                                       {"discount:-1", "-"},
                                                       {"fly", "-"},
                                                       {"", "-"},
                                                       {":5", "-"}};
  for (const auto& [typed, kept] : texts) {
    const auto right = parseRight(typed);
    EXPECT_EQ(right ? rightText(*right) : "-", kept) << typed;
  }
  const ClsRights rights({"discount:10", "return", "return:5", "price:3", "fly"});
  EXPECT_TRUE(rights.HasRight("Discount") && rights.HasRight("fly"));
  EXPECT_FALSE(rights.HasRight("price"));
  const std::pair<Deed, bool> deeds[] = {
      {{Right::kDiscount, percentOff(Discount(0.9))}, true},
      {{Right::kDiscount, percentOff(Discount(0.8999))}, false},
      {{Right::kDiscount, percentOf(yuan("0.25"), yuan("2.5"))}, true},
      {{Right::kDiscount, percentOf(yuan("0.2501"), yuan("2.5"))}, false},
      {{Right::kDiscount, percentOf(yuan("1"), yuan("-5"))}, false},
      {{Right::kReturn, yuan("1000")}, true},
      {{Right::kPrice}, false}};
  for (const auto& [deed, allowed] : deeds)
    EXPECT_EQ(rights.Allow(deed), allowed) << generalNumber(deed.size);
}

TEST_F(RightsTest, AnApprovalHoldsForOneDeedAndForWhatIsPartOfIt) {
  EXPECT_TRUE(Permission(rules).may(cashier, {Right::kDrawer}, nullptr)) << "off until it is set";
  ASSERT_EQ(rules.set("Approval", "1"), "");
  Permission door(rules);
  {
    const Permit refund = door.may(cashier, {Right::kReturn, yuan("100")}, ask);
    const Permit less = door.may(cashier, {Right::kReturn, yuan("99")}, ask);
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(door.approver()->Id(), 2);
    const Permit more = door.may(cashier, {Right::kReturn, yuan("101")}, ask);
    EXPECT_EQ(asked, 2);
    cashier.setRights(ClsRights({"drawer"}));
    const Permit own = door.may(cashier, {Right::kDrawer}, ask);
    EXPECT_FALSE(door.approver()) << "what is done now is the cashier's own";
  }
  EXPECT_FALSE(door.approver());
  EXPECT_TRUE(door.may(cashier, {Right::kReturn, yuan("1")}, ask));
  EXPECT_EQ(asked, 3);
  EXPECT_FALSE(door.may(cashier, {Right::kReturn}, [](const Deed&) { return nullptr; }));
}

TEST_F(RightsTest, WrongPasswordsAndCardsAreSlowedDownFromTheThirdOn) {
  ASSERT_TRUE(giveStaffCard(connection, 2, "；9002？ "));
  EXPECT_FALSE(giveStaffCard(connection, 1, ";9002?")) << "it is somebody's";
  std::chrono::steady_clock::time_point steady{};
  LoginBrake brake([&] { return steady; });
  Identification door(connection, rules, brake);
  const auto attempt = [&](const char* text) {
    const auto answer = *text == ';' ? door.bySwipe(text) : door.byPassword("2", text);
    return std::pair(answer.person != nullptr, answer.wait.count());
  };
  for (int i = 0; i < 4; ++i) EXPECT_THAT(attempt("wrong"), Pair(false, 0)) << "as it was";
  EXPECT_THAT(attempt("222"), Pair(true, 0));
  ASSERT_EQ(rules.set("Approval", "1"), "");
  for (const int wait : {0, 0, 5, 5}) EXPECT_THAT(attempt(";9003?"), Pair(false, wait));
  EXPECT_THAT(attempt("222"), Pair(false, 5)) << "nothing is looked at";
  for (const int wait : {10, 20, 40, 60, 60}) {
    steady += std::chrono::seconds(60);
    EXPECT_THAT(attempt("wrong"), Pair(false, wait));
  }
  steady += std::chrono::milliseconds(58'001);
  EXPECT_THAT(attempt("222"), Pair(false, 2));
  steady += std::chrono::seconds(2);
  EXPECT_THAT(attempt(";9002?"), Pair(true, 0));
  EXPECT_THAT(attempt("wrong"), Pair(false, 0)) << "counted anew";
  takeStaffCard(connection, 2);
  EXPECT_THAT(attempt(";9002?"), Pair(false, 0));
}
