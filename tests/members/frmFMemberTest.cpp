#include "members/frmFMember.h"

#include <QComboBox>
#include <QRadioButton>

#include "MembersTill.h"

namespace {

using testing::ElementsAre;

constexpr const char* kWindow = "frmFMember";

class frmFMemberTest : public MembersTill {
 protected:
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
    for (int field = 0; field < 7; ++field) Hands::pressNow(Qt::Key_Enter);
    EXPECT_EQ(focusName(shown), "cmdOk");
    const std::pair<const char*, const char*> typed[] = {
        {"txtName", " 欧阳'; drop table member; --"},
        {"txtPhone", "１３９ "},
        {"txtPostcode", "12"},
        {"password", "Pw'1"},
        {"card", "88.5"},
        {"DTPicker1", "19900228"}};
    for (const auto& [name, text] : typed) field(shown, name)->setText(text);
    shown.findChild<QComboBox*>("zklb2")->setCurrentText("银卡");
    shown.findChild<QRadioButton*>("OptGirl")->setFocus();
    Hands::pressNow(Qt::Key_Space);
    okNow(shown);
  });
  hands.confirm(messages);
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
      {"txtPostcode", "32768", "积分“32768”不是有效的整数！"},
      {"card", "-1", "储值卡余额不能是负数！"},
      {"txtName", tooLong.c_str(), "会员姓名不能超过100个字符！"},
      {"txtBh", ";8800１234?", "会员编号 88001234 已经存在！"},
      {"txtBh", ";?", "请输入会员编号！"},
  };
  hands.type(kWindow, "77").press(kWindow, {Qt::Key_Return});
  for (const auto& c : cases) {
    hands.at(kWindow, [&, c](QWidget& shown) {
      for (const auto& each : cases) field(shown, each.field)->setText("7");
      field(shown, c.field)->setText(c.value);
      okNow(shown);
    });
    hands.confirm(messages);
  }
  hands.press(kWindow, {Qt::Key_Escape});
  dialog.init();
  ASSERT_EQ(messages.size(), std::size(cases));
  for (std::size_t i = 0; i < messages.size(); ++i) EXPECT_EQ(messages[i], cases[i].message);
  EXPECT_EQ(stored("count(*) as v from member"), "1");
}

TEST_F(frmFMemberTest, AKnownCardIsShownAndCannotBeChanged) {
  hands.type(kWindow, ";88001234?").press(kWindow, {Qt::Key_Return});
  hands.at(kWindow, [&](QWidget& shown) {
    EXPECT_EQ(text(shown, "txtName") + text(shown, "txtPostcode"), "王芳7");
    for (const char* name : {"txtBh", "txtPostcode", "card", "cmdOk"}) {
      EXPECT_FALSE(shown.findChild<QWidget*>(name)->isEnabled()) << name;
    }
    EXPECT_EQ(focusName(shown), "cmdCancel");
    Hands::pressNow(Qt::Key_Return);
  });
  dialog.init();
}

}  // namespace
