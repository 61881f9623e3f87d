#include "TillFixture.h"

class MemberCardTest : public TillFixture {
 protected:
  MemberCardTest() {
    pos.gConn->runScript(R"(
      insert into member (bh, name, phone, discount, enabled, total_spent, join_date) values
        ('6', '郑六', '', 1, 1, 0, '2026-03-04 10:00:00'),
        ('?6', '吴六', '', 1, 1, 0, '2026-03-04 10:00:00'),
        ('8002', '李明', '13800000001', 0.9, 1, 12.5, '2026-03-04 10:00:00'),
        ('8003', '赵云', '13800000002', 1, 0, 0, '2026-03-04 10:00:00'),
        ('13800000001', '钱多', '', 1, 1, 0, '2026-03-04 10:00:00'),
        ('8004', '孙丽', '13800000003', 1, 1, 0, '2026-03-04 10:00:00'),
        ('8005', '孙强', '13800000003', 1, 0, 0, '2026-03-04 10:00:00');
    )");
    open();
  }
  void attach(const QString& answer) {
    till.question = "会员卡输入会员卡号或电话：";
    till.answers = {answer};
    press(kF2);
    till.question.clear();
  }
  std::string attached() const {
    const ClsMember* member = session.sale().member();
    EXPECT_EQ(bill().MemberId(), member ? member->Id() : 0);
    return member ? member->Name() : "";
  }
};

TEST_F(MemberCardTest, findsByCardThenByTelephoneAndSaysWhyNot) {
  const struct {
    const char* answer;
    int choice;
    const char *member, *message;
  } cases[] = {
      {" ;８００２? ", -1, "李明", ""},
      {"?6", -1, "吴六", ""},           // as typed before what it is cleaned to
      {"13800000001", -1, "钱多", ""},  // a card's number wins over a telephone number
      {"13800000003", 0, "孙丽", ""},
      {"13800000003", -1, "", ""},
      {"13800000003", 1, "", "会员卡被禁用！卡号：8005，持卡人：孙强"},
      {"8003", -1, "", "会员卡被禁用！卡号：8003，持卡人：赵云"},
      {"8009", -1, "", "无效的会员卡!"},
      {"", -1, "", ""},
  };
  for (const auto& each : cases) {
    SCOPED_TRACE(each.answer);
    till.choice = each.choice;
    attach("8001");
    attach(each.answer);
    EXPECT_EQ(attached(), each.member);
    EXPECT_EQ(till.said(), each.message);
    EXPECT_EQ(till.memberInfo.empty(), *each.member == '\0');
  }
  EXPECT_EQ(till.offered, (QStringList{"8004  孙丽", "8005  孙强（已禁用）"}));
}

TEST_F(MemberCardTest, theInformationLineGoesWithTheMembersBill) {
  attach("8002");
  enter(kWater);
  press(kF2);
  EXPECT_EQ(till.said(), "会员卡只能在还没有开始销售时加入！");
  press(kF5);
  EXPECT_EQ(attached() + till.memberInfo, "") << "the next bill starts without one";
  till.choice = 0;
  press(kF6);
  EXPECT_EQ(attached() + till.memberInfo, "李明会员：李明，办卡日期：2026-03-04，累计消费：12.50");
  enter("80g");
  enter("");
  EXPECT_EQ(attached() + till.memberInfo, "");
  attach("8002");
  EXPECT_EQ(till.memberInfo,
            "会员：李明，办卡日期：2026-03-04，累计消费：27.98\n"
            "最近消费时间：2026-11-22 09:05:03，金额：15.48\n最近购买商品：矿泉水、红茶");
}
