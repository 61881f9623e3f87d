#include "saleslib/TopUpBooks.h"

#include "ShopFixture.h"
#include "saleslib/CardNumber.h"
#include "store/StoreError.h"

using TopUpTest = ShopFixture;

TEST_F(TopUpTest, ANumberIsLookedUpAsTypedAndThenWithoutWhatTheReaderTypes) {
  for (const std::string number : {"vip9", "9", "88h01", "'  ''='"}) {
    pos.gConn->run("insert into member (bh, join_date) values (?, '2026-01-02')", number);
  }
  const std::pair<const char*, const char*> cases[] = {
      {";8001?", "8001"},    {"vip88h01", "88h01"}, {" ；８００１？ ", "8001"}, {"vip9", "vip9"},
      {" ；VIP9? ", "vip9"}, {"v9", "9"},           {"' or ''='", "'  ''='"}};
  for (const auto& [typed, number] : cases) {
    EXPECT_EQ(pos.topUpBooks().card(typed).value().number, number) << typed;
  }
  EXPECT_EQ(pos.gMemberSvc.GetMember(" vip9 ")->Bh(), "vip9");
  EXPECT_EQ(pos.gMemberSvc.GetMember("v9"), nullptr) << "a member's number keeps its letters";
}

TEST_F(TopUpTest, ARecordWithoutItsBalanceStaysAndIsCompletedByTheSameTopUp) {
  const TopUp topUp{
      "8001", Currency::fromYuan(90),  Currency::fromYuan(100), *Currency::parse("188.5"),
      "优惠", *Currency::parse("88.5")};
  const auto books = [this] {
    return stored(
        "group_concat(complete||':'||commerce)||' '||(select card from member) as v"
        " from cardStored");
  };
  const auto fail = [&] {
    breakStore("update on member");
    EXPECT_THAT([&] { pos.topUpBooks().store(topUp); },
                testing::ThrowsMessage<StoreError>(testing::HasSubstr("disk")));
    mendStore();
  };
  fail();
  EXPECT_EQ(books(), "0:188.5 88.5");
  pos.topUpBooks().store(topUp);
  EXPECT_EQ(books(), "1:188.5 188.5");
  fail();
  pos.topUpBooks().noteReported(pos.topUpBooks().incomplete().at(0));
  pos.topUpBooks().store(topUp);
  EXPECT_EQ(books(), "1:188.5,0:188.5,1:288.5 288.5") << "what was told stays as it was told";
}
