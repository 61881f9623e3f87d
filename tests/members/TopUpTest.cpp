#include "members/TopUp.h"

#include "MembersTill.h"
#include "saleslib/CardNumber.h"
#include "store/StoreError.h"

namespace {

using TopUpTest = MembersTill;

TEST_F(TopUpTest, WhatTheReaderTypesAroundANumberGoes) {
  const std::pair<const char*, const char*> cases[] = {{";88001234?", "88001234"},
                                                       {"vip88h01", "88h01"},
                                                       {" ；８８０１？ ", "8801"},
                                                       {"' or ''='", "'  ''='"}};
  for (const auto& [typed, number] : cases) EXPECT_EQ(storedCardNumber(typed), number);
  EXPECT_EQ(memberNumber(" ；vip８８？ "), "vip88");
}

TEST_F(TopUpTest, ARecordThatWasWrittenStaysWhenTheBalanceCannotBe) {
  const TopUp topUp{"88001234", Currency::fromYuan(90), Currency::fromYuan(100),
                    Currency::fromYuan(150), "'; delete from member; --"};
  till.pos.gConn->runScript(
      "create trigger broken before update on member begin select raise(abort, 'disk'); end");
  EXPECT_THROW(storeTopUp(*till.pos.gConn, topUp), StoreError);
  EXPECT_EQ(stored("cardbh||addmoney||inMoney||commerce||bz as v from cardStored"),
            "8800123410090150'; delete from member; --");
  EXPECT_EQ(stored("card as v from member"), "50");
}

TEST_F(TopUpTest, TheSlipRepeatsWhatTheFieldsShow) {
  EXPECT_EQ(till.pos.gSysParam.set("ShopName", "小店"), "");
  EXPECT_EQ(till.pos.gSysParam.set("ReceiptText2", "谢谢"), "");
  till.pos.gSysParam.Conn(*till.pos.gConn);
  const PageDocument slip =
      topUpSlip(till.pos.gSysParam, {"88001234", "50", "90.00", "100", "150"});
  std::string printed;
  for (const PlacedText& line : slip.texts) printed += line.text + "|";
  EXPECT_EQ(
      printed,
      " 小店充值单  | 卡号: 88001234   | 充值前卡内余额: 50 | 付款金额: 90.00 | 充值金额: 100 |"
      " 充值后卡内余额: 150 ||________________________________________||谢谢||");
  EXPECT_EQ(slip.texts.back().y, 10 * slip.lineHeight());
}

}  // namespace
