#include "saleslib/TopUpBooks.h"

#include "MembersTill.h"
#include "members/TopUpSlip.h"
#include "saleslib/CardNumber.h"
#include "store/StoreError.h"

namespace {

using TopUpTest = MembersTill;

TEST_F(TopUpTest, ANumberIsLookedUpAsTypedAndThenWithoutWhatTheReaderTypes) {
  for (const std::string number : {"vip9", "9", "88h01", "'  ''='"}) {
    till.pos.gConn->run("insert into member (bh, join_date) values (?, '2026-01-02')", number);
  }
  const std::pair<const char*, const char*> cases[] = {
      {";88001234?", "88001234"}, {"vip88h01", "88h01"}, {" ；８８００１２３４？ ", "88001234"},
      {"vip9", "vip9"},           {" ；VIP9? ", "vip9"}, {"v9", "9"},
      {"' or ''='", "'  ''='"}};
  for (const auto& [typed, number] : cases) {
    EXPECT_EQ(till.pos.topUpBooks().card(typed).value().number, number) << typed;
  }
  EXPECT_EQ(till.pos.gMemberSvc.GetMember(" vip9 ")->Bh(), "vip9");
  EXPECT_EQ(till.pos.gMemberSvc.GetMember("v9"), nullptr) << "a member's number keeps its letters";
}

TEST_F(TopUpTest, ARecordWithoutItsBalanceStaysAndIsCompletedByTheSameTopUp) {
  const TopUp topUp{
      "88001234", Currency::fromYuan(90), Currency::fromYuan(100), Currency::fromYuan(150),
      "优惠",     Currency::fromYuan(50)};
  Connection& file = *till.pos.gConn;
  TopUpBooks topUps(file);
  const auto books = [this] {
    return stored(
        "group_concat(complete||':'||commerce)||' '||(select card from member) as v"
        " from cardStored");
  };
  const auto fail = [&] {
    file.runScript(
        "create trigger broken before update on member begin select raise(abort, 'disk'); end");
    EXPECT_THROW(topUps.store(topUp), StoreError);
    file.runScript("drop trigger broken");
  };
  fail();
  EXPECT_EQ(books(), "0:150 50");
  topUps.store(topUp);
  EXPECT_EQ(books(), "1:150 150");
  fail();
  topUps.noteReported(topUps.incomplete().at(0));
  topUps.store(topUp);
  EXPECT_EQ(books(), "1:150,0:150,1:250 250")
      << "what the cashier was told of stays as it was told";
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
