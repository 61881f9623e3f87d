#include "TillFixture.h"

class MemberCardTest : public TillFixture {
 protected:
  static constexpr int kF2 = 113, kF4 = 115, kF5 = 116, kF6 = 117;

  MemberCardTest() {
    pos.gConn->runScript(R"(
      insert into member (bh, name, phone, discount, enabled, total_spent, join_date) values
        ('8002', '李明', '13800000001', 0.9, 1, 12.5, '2026-03-04 10:00:00'),
        ('8003', '赵云', '13800000002', 1, 0, 0, '2026-03-04 10:00:00'),
        ('13800000001', '钱多', '', 1, 1, 0, '2026-03-04 10:00:00'),
        ('8004', '孙丽', '13800000003', 1, 1, 0, '2026-03-04 10:00:00'),
        ('8005', '孙强', '13800000003', 1, 0, 0, '2026-03-04 10:00:00'),
        ('8006', '周全', '13800000004', 0.9, 1, 0, '2026-03-04 10:00:00');
    )");
    till.question = "会员卡输入会员卡号或电话：";
    open();
  }
  void attach(const QString& answer) {
    till.answers = {answer};
    press(kF2);
    till.question.clear();
  }
  std::string attached() const {
    const auto& member = session.state.curMember;
    EXPECT_EQ(session.state.curBill->MemberId(), member ? member->Id() : 0);
    return member ? member->Name() : "";
  }
};

TEST_F(MemberCardTest, findsByCardThenByTelephoneAndSaysWhyNot) {
  struct Case {
    const char* answer;
    int choice;
    const char *member, *message;
  };
  for (const Case& each : std::vector<Case>{
           {"8002", -1, "李明", ""},
           {" ;８００２? ", -1, "李明", ""},
           {"13800000004", -1, "周全", ""},
           {"13800000001", -1, "钱多", ""},  // a card's number wins over a telephone number
           {"13800000003", 0, "孙丽", ""},
           {"13800000003", -1, "", ""},
           {"13800000003", 1, "", "会员卡被禁用！卡号：8005，持卡人：孙强"},
           {"8003", -1, "", "会员卡被禁用！卡号：8003，持卡人：赵云"},
           {"13800000002", -1, "", "会员卡被禁用！卡号：8003，持卡人：赵云"},
           {"8009", -1, "", "无效的会员卡!"},
           {"8' or '1'='1", -1, "", "无效的会员卡!"},
           {"", -1, "", ""}}) {
    SCOPED_TRACE(each.answer);
    for (const char* before : {"8001", each.answer}) {
      till.question = "会员卡输入会员卡号或电话：";
      till.choice = each.choice;
      attach(before);
    }
    EXPECT_EQ(attached(), each.member);
    EXPECT_EQ(till.messages.empty() ? "" : onlyMessage(), each.message);
    EXPECT_EQ(till.memberInfo.empty(), *each.member == '\0');
  }
  EXPECT_EQ(till.offered, (QStringList{"8004  孙丽", "8005  孙强"}));
}

TEST_F(MemberCardTest, pricesPointsAndTheInformationLineFollowTheMember) {
  attach("8002");
  EXPECT_EQ(till.memberInfo, "会员：李明，办卡日期：2026-03-04，累计消费：12.50");
  enter(kWater);
  EXPECT_EQ(cell(0, BillRow::kPrice) + "x" + cell(0, BillRow::kDiscount), "2.20x0.9");
  press(kF2);
  EXPECT_EQ(onlyMessage(), "会员卡只能在还没有开始销售时加入！");
  enter(kCrate);
  EXPECT_EQ(cell(1, BillRow::kPrice) + "x" + cell(1, BillRow::kDiscount), "28.00x1");
  press(kF4);
  press(kF2);
  EXPECT_EQ(onlyMessage(), "会员卡只能在还没有开始销售时加入！");
  EXPECT_EQ(attached(), "李明");
  enter("");
  EXPECT_EQ(attached() + till.memberInfo, "") << "the next bill starts without one";
  EXPECT_EQ(stored("total_spent as v from member where bh = '8002'"), "14.48");

  till.question = "会员卡输入会员卡号或电话：";
  attach("8002");
  EXPECT_EQ(till.memberInfo,
            "会员：李明，办卡日期：2026-03-04，累计消费：14.48\n"
            "最近消费时间：2026-11-22 09:05:03，金额：1.98\n最近购买商品：矿泉水");
}

TEST_F(MemberCardTest, aRecalledBillBringsItsMemberBack) {
  attach("8006");
  enter(kWater);
  press(kF5);
  EXPECT_EQ(attached() + till.memberInfo, "");
  EXPECT_EQ(stored("member_id as v from sell where id = 1"), "7");
  enter(kWater);
  press(kF5);
  till.question = "会员卡输入会员卡号或电话：";
  attach("8001");
  till.choice = 1;
  press(kF6);
  EXPECT_EQ(attached() + till.memberInfo, "") << "that bill has no member";
  press(123);
  till.choice = 0;
  press(kF6);
  EXPECT_EQ(attached(), "周全");
  EXPECT_EQ(till.memberInfo.substr(0, 15), "会员：周全");
  enter(kWater);
  EXPECT_EQ(cell(1, BillRow::kPrice), "2.20");
}
