#include "members/TopUp.h"

#include "MembersTill.h"
#include "saleslib/CardNumber.h"
#include "saleslib/ClsSysParam.h"
#include "store/StoreError.h"

namespace {

using TopUpTest = MembersTill;

TEST(CardNumberTest, WhatTheReaderTypesAroundANumberGoes) {
  const struct {
    const char *typed, *member, *storedCard;
  } cases[] = {
      {";88001234?", "88001234", "88001234"}, {"vip88h01", "vip88h01", "88h01"},
      {" ；８８０１？ ", "8801", "8801"},     {"VIP-8?8;", "VIP-88", "VIP-88"},
      {"' or ''='", "' or ''='", "'  ''='"},  {";?", "", ""},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(memberNumber(c.typed), c.member);
    EXPECT_EQ(storedCardNumber(c.typed), c.storedCard);
  }
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
  for (const char* name : {"ShopName", "ReceiptText1", "ReceiptText2", "ReceiptText3"}) {
    EXPECT_EQ(till.pos.gSysParam.set(name, std::string("<") + name + ">"), "");
  }
  till.pos.gSysParam.Conn(*till.pos.gConn);
  const PageDocument slip =
      topUpSlip(till.pos.gSysParam, 2, {"88001234", "50", "90.00", "100", "150"});
  std::string printed;
  int y = 0;
  for (const PlacedText& line : slip.texts) {
    EXPECT_EQ(line.y, y);
    printed += line.text + "|\n";
    y += slip.lineHeight();
  }
  EXPECT_EQ(printed,
            " <ShopName>充值单  |\n 卡号: 88001234   |\n 充值前卡内余额: 50 |\n 付款金额: 90.00 |\n"
            " 充值金额: 100 |\n 充值后卡内余额: 150 |\n|\n"
            "________________________________________|\n<ReceiptText1>|\n<ReceiptText2>|\n"
            "<ReceiptText3>|\n");
  EXPECT_EQ(slip.paperWidthMm, 58);
}

}  // namespace
