#include "Shop.h"
#include "saleslib/ClsMember.h"
#include "saleslib/ClsMemberSvc.h"
#include "saleslib/StoredCard.h"
#include "store/Transaction.h"

class MemberTest : public Shop {
 protected:
  MemberTest() { members.Conn(connection); }
  ClsMember newMember(const std::string& number) {
    ClsMember member;
    member.Init(connection, 0, clock);
    member.setBh(number);
    member.setName("王五");
    member.setBalance(yuan("50.5"));
    return member;
  }
  ClsMemberSvc members;
};

TEST_F(MemberTest, AMemberIsStoredAndFoundWithItsCard) {
  ClsMember member = newMember(" 88001234 ");
  member.setPassword("aB'");
  member.setPoints(-5);
  member.setBirthday({1990, 2, 3});
  ASSERT_TRUE(member.Save()) << member.ErrText();
  EXPECT_EQ(stored("bh || ' ' || card || ' ' || password || ' ' || birthday from member"),
            "88001234 50.5 aB' 1990-02-03 00:00:00");

  const auto found = members.GetMember("88001234");
  ASSERT_NE(found, nullptr);
  EXPECT_EQ(found->Discount(), 1.0) << "a record without a factor";
  EXPECT_EQ(found->Points(), -5);
  EXPECT_TRUE(found->Enabled());
  connection.run("update member set card = 20");
  found->setTotalSpent(yuan("120.5"));
  ASSERT_TRUE(found->Save());
  ASSERT_TRUE(member.Save()) << "an opening balance is written once";
  EXPECT_EQ(stored("card || ' ' || password || ' ' || total_spent from member"), "20 aB' 120.5")
      << "a sale leaves the card alone";
  connection.run("delete from member");
  EXPECT_FALSE(found->Update());
  EXPECT_EQ(found->ErrText(), "会员 88001234 已被删除，没有保存！");
}

TEST_F(MemberTest, FlawsAreRefusedExceptInAnOldRecord) {
  ASSERT_TRUE(newMember("1").Save());
  const std::pair<const char*, void (*)(ClsMember&)> flaws[] = {
      {"会员编号 1 已经存在！", [](ClsMember& m) { m.setBh("1"); }},
      {"会员姓名不能超过100个字符！", [](ClsMember& m) { m.setName(std::string(101, 'x')); }},
      {"备注含有无法保存的字符！", [](ClsMember& m) { m.setOther(std::string("a\0b", 3)); }},
      {"折扣不能是负数！", [](ClsMember& m) { m.setDiscount(-0.1); }},
      {"储值卡余额不能是负数！", [](ClsMember& m) { m.setBalance(yuan("-1")); }}};
  for (const auto& [why, spoil] : flaws) {
    ClsMember member = newMember("2");
    spoil(member);
    EXPECT_FALSE(member.Save());
    EXPECT_EQ(member.ErrText(), why);
  }
  connection.run("update member set name = ''");
  const auto old = members.GetMember("1");
  old->setPoints(3);
  EXPECT_TRUE(old->Save()) << "its points are earned all the same";
}

TEST_F(MemberTest, ChargesAreTakenFromWhatIsOnTheCardToTheLastFen) {
  ASSERT_TRUE(newMember("1").Save());
  connection.run("update member set card = 0.3");
  for (const char* left : {"0.2", "0.1", "0"}) {
    EXPECT_EQ(chargeCard(connection, "1", "", yuan("0.1")).outcome, CardOutcome::kDone);
    EXPECT_EQ(stored("card from member"), left);
  }
  EXPECT_EQ(chargeCard(connection, "1", "", yuan("0.0001")).outcome, CardOutcome::kTooLittle);
  EXPECT_DEATH(chargeCard(connection, "1", "", yuan("-1")), "loads no card");
}

TEST_F(MemberTest, AMemberTakenBackIsStillNewAndItsCardWrittenOnce) {
  ClsMember member = newMember("1");
  for (const char* card : {"50.5", "20"}) {
    {
      Transaction transaction(connection);
      ASSERT_TRUE(member.Save());
    }
    EXPECT_EQ(member.Id() == 0, card == std::string("50.5"));
    ASSERT_TRUE(member.Save());
    EXPECT_EQ(stored("card from member"), card);
    connection.run("update member set card = 20");
  }
}
