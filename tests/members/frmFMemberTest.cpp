#include "members/frmFMember.h"

#include <QComboBox>
#include <QDateEdit>
#include <QRadioButton>

#include "MembersTill.h"

namespace {

using testing::ElementsAre;

class frmFMemberTest : public MembersTill {
 protected:
  static constexpr const char* kWindow = "frmFMember";

  std::string memberCount() { return stored("count(*) as v from member"); }
  static void okNow(QWidget& shown) {
    QTest::keyClick(shown.findChild<QWidget*>("cmdOk"), Qt::Key_Return);
  }

  frmFMember dialog{till.pos};
};

TEST_F(frmFMemberTest, ASwipedNewCardBecomesAMemberByKeyboardAlone) {
  EXPECT_EQ(till.pos.gSysParam.set("SilverRate", "0.85"), "");
  till.pos.gSysParam.Conn(*till.pos.gConn);
  hands.type(kWindow, ";66001234?").press(kWindow, {Qt::Key_Return});
  hands.at(kWindow, [&](QWidget& shown) {
    EXPECT_EQ(text(shown, "txtBh"), "66001234");
    EXPECT_EQ(text(shown, "txtOld") + text(shown, "txtPostcode"), "250");
    for (const char* name : {"txtName", "txtOld", "OptBoy", "txtAddress", "txtPostcode", "txtPhone",
                             "txtOther", "cmdOk"}) {
      EXPECT_EQ(focusName(shown), name);
      if (std::string(name) != "cmdOk") Hands::pressNow(Qt::Key_Enter);
    }
    field(shown, "txtName")->setText(" 欧阳'; drop table member; --");
    field(shown, "txtPhone")->setText("１３９ ");
    field(shown, "txtPostcode")->setText("12");
    field(shown, "password")->setText("Pw'1");
    field(shown, "card")->setText("88.5");
    shown.findChild<QComboBox*>("zklb2")->setCurrentText("银卡");
    shown.findChild<QDateEdit*>("DTPicker1")->setDate(QDate(1990, 2, 28));
    shown.findChild<QRadioButton*>("OptGirl")->setFocus();
    Hands::pressNow(Qt::Key_Space);
    Hands::pressNow(Qt::Key_Return);
    EXPECT_EQ(focusName(shown), "txtAddress");
    okNow(shown);
  });
  confirmMessage();
  dialog.init();
  EXPECT_THAT(messages, ElementsAre("会员增加成功!"));
  EXPECT_EQ(stored("bh||'|'||name||'|'||sex||'|'||age||'|'||phone||'|'||points||'|'||card||'|'||"
                   "password||'|'||discount||'|'||total_spent||'|'||enabled||'|'||birthday as v"
                   " from member where bh='66001234'"),
            "66001234|欧阳'; drop table member; --|女|25|139|12|88.5|Pw'1|0.85|0|1|"
            "1990-02-28 00:00:00");
}

TEST_F(frmFMemberTest, WhatIsWrongIsSaidAndNothingStored) {
  const std::string tooLong(101, 'x');
  const struct {
    const char *field, *value, *message;
  } cases[] = {
      {"txtName", " ", "请输入会员姓名"},
      {"txtOld", "abc", "出错:年龄“abc”不是有效的整数！"},
      {"txtOld", "", "出错:年龄“”不是有效的整数！"},
      {"txtPostcode", "32768", "出错:积分“32768”不是有效的整数！"},
      {"card", "1'", "出错:储值卡余额“1'”不是有效的金额！"},
      {"card", "-1", "出错:储值卡余额不能是负数！"},
      {"txtName", tooLong.c_str(), "出错:会员姓名不能超过100个字符！"},
      {"txtBh", ";8800１234?", "出错:会员编号 88001234 已经存在！"},
      {"txtBh", ";?", "出错:请输入会员编号！"},
  };
  hands.type(kWindow, "77").press(kWindow, {Qt::Key_Return});
  for (const auto& c : cases) {
    hands.at(kWindow, [&, c](QWidget& shown) {
      field(shown, "txtBh")->setText("77");
      field(shown, "txtName")->setText("李");
      field(shown, "txtOld")->setText("30");
      field(shown, "txtPostcode")->setText("0");
      field(shown, "card")->setText("0");
      field(shown, c.field)->setText(c.value);
      okNow(shown);
    });
    confirmMessage();
  }
  hands.press(kWindow, {Qt::Key_Escape});
  dialog.init();
  ASSERT_EQ(messages.size(), std::size(cases));
  for (std::size_t i = 0; i < messages.size(); ++i) EXPECT_EQ(messages[i], cases[i].message);
  EXPECT_EQ(memberCount(), "1");
}

TEST_F(frmFMemberTest, AKnownCardIsShownAndCannotBeChanged) {
  hands.type(kWindow, ";88001234?").press(kWindow, {Qt::Key_Return});
  hands.at(kWindow, [&](QWidget& shown) {
    EXPECT_EQ(text(shown, "txtName") + text(shown, "txtOld") + text(shown, "txtPostcode"),
              "王芳317");
    EXPECT_TRUE(shown.findChild<QRadioButton*>("OptGirl")->isChecked());
    EXPECT_EQ(shown.findChild<QComboBox*>("zklb2")->currentText(), "0.9");
    auto* status = shown.findChild<QLabel*>("lblStatus");
    EXPECT_TRUE(status->isVisible());
    EXPECT_EQ(status->text(), "卡状态：可用\r\n累计消费：120.50\r\n加入时间：2026-01-02");
    EXPECT_FALSE(shown.findChild<QLabel*>("Label10")->isVisible());
    for (const char* name :
         {"txtBh", "txtName", "txtOld", "OptBoy", "OptGirl", "txtAddress", "txtPostcode",
          "txtPhone", "txtOther", "cmdOk", "zklb2", "DTPicker1"}) {
      EXPECT_FALSE(shown.findChild<QWidget*>(name)->isEnabled()) << name;
    }
    EXPECT_EQ(focusName(shown), "cmdCancel");
    Hands::pressNow(Qt::Key_Return);
  });
  dialog.init();
  EXPECT_EQ(memberCount(), "1");
}

}  // namespace
