#include "TillFixture.h"
#include "base/Gbk.h"

using testing::HasSubstr;

TEST_F(TillFixture, WhatIsPractisedIsSoldAtTheShopsPricesAndLeavesItsBooksAlone) {
  const char* kBooks =
      "(select count(*) from sell) || (select count(*) from sellProducts) ||"
      " (select group_concat(quantity) from stock) || (select group_concat(card) from member) ||"
      " (select count(*) from cardStored) || (select value from sys_param where name='ShopName')"
      " as v";
  const std::string before = stored(kBooks);
  pos.gPosSet.PPort = pos.gPosSet.MBPort = "LPT1";
  {
    const std::unique_ptr<posMod> practice = pos.practice();
    SaleSession lesson(*practice, till, {});
    ASSERT_TRUE(lesson.open());
    const auto press = [&](int code) { static_cast<void>(lesson.key(code, till.text)); };
    const auto enter = [&](const char* typed) {
      lesson.textComing(till.text);
      till.text = typed;
      press(kEnter);
    };
    enter(kWater);
    pos.gConn->run("update tmda set xsdj = 3 where sptm = ?", std::string(kWater));
    enter(kWater);
    enter("80g");  // found by the fragment index
    EXPECT_EQ(till.status, "3件商品，原价合计19   合计19.00元");
    till.pay = [](Settlement& payment) {
      EXPECT_EQ(payment.payByCard("8001", "Pw1"), CardOutcome::kDone);
      payment.sayCardPaid();
    };
    press(kF1);
    press(121);  // the drawer
    EXPECT_EQ(practice->gConn->Open("select * from sell where state = 1").count(), 1U);
    EXPECT_THROW(practice->gConn->run("update tmda set xsdj = 0"), Failure);
  }
  EXPECT_EQ(stored(kBooks), before);
  const std::string paper = gbk::decode(fileBytes(folder.file("lpt1")));
  EXPECT_THAT(paper, HasSubstr("练习，不入账"));
  EXPECT_THAT(paper, Not(HasSubstr("好邻居便利店")));
  EXPECT_THAT(paper, Not(HasSubstr("\x1Bp"))) << "the drawer stays closed";
}
