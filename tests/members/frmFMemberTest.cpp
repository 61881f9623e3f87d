#include "members/frmFMember.h"

#include <QComboBox>
#include <QRadioButton>

#include "Approvals.h"

constexpr const char* kWindow = "frmFMember";
constexpr const char* kFields = "txtBh txtName txtPostcode card cmdOk";

class frmFMemberTest : public ShopFixture {
 protected:
  static void set(QWidget& window, const char* name, const char* text) {
    window.findChild<QLineEdit*>(name)->setText(text);
  }
  static void okNow(QWidget& shown) {
    QTest::keyClick(shown.findChild<QWidget*>("cmdOk"), Qt::Key_Return);
  }

  frmFMember dialog{pos};
  Hands hands;
};

TEST_F(frmFMemberTest, ASwipedNewCardBecomesAMemberByKeyboardAlone) {
  setParameter("SilverRate", "0.85");
  askForApprovals(pos, {"members"}, {"topup"});
  hands.type(kWindow, ";66001234?\n\n\n\n\n\n\n\n")
      .see(kWindow, kFields, "66001234||0|0|确定@cmdOk");
  hands.at(kWindow, [&](QWidget& shown) {
    const std::pair<const char*, const char*> typed[] = {
        {"txtName", " 欧阳'; drop table member; --"},
        {"txtPhone", "１３９ "},
        {"txtPostcode", "12"},
        {"password", "Pw'1"},
        {"card", "88.5"},
        {"DTPicker1", "19900228"}};
    for (const auto& [name, text] : typed) set(shown, name, text);
    shown.findChild<QComboBox*>("zklb2")->setCurrentText("银卡");
    shown.findChild<QRadioButton*>("OptGirl")->setFocus();
    Hands::pressNow(Qt::Key_Space);
    okNow(shown);
  });
  hands.type("dlgApproval", kGivesUp)
      .see(kWindow, kFields, "66001234| 欧阳'; drop table member; --|12|88.5|确定@card");
  hands.at(kWindow, okNow).type("dlgApproval", kSwipes);  // money on a card is a top-up
  hands.says("messageBox", "会员增加成功!");
  dialog.init();
  EXPECT_EQ(stored("bh||'|'||name||'|'||sex||'|'||age||'|'||phone||'|'||points||'|'||card||'|'||"
                   "password||'|'||discount||'|'||total_spent||'|'||enabled||'|'||birthday as v"
                   " from member where bh='66001234'"),
            "66001234|欧阳'; drop table member; --|女|25|139|12|88.5|Pw'1|0.85|0|1|"
            "1990-02-28 00:00:00");
}

TEST_F(frmFMemberTest, WhatIsWrongIsSaidAndNothingStored) {
  const std::string tooLong(101, 'x');
  const char* const cases[][3] = {{"txtName", " ", "请输入会员姓名"},
                                  {"txtPostcode", "32768", "积分“32768”不是有效的整数！"},
                                  {"card", "-1", "储值卡余额不能是负数！"},
                                  {"txtName", tooLong.c_str(), "会员姓名不能超过100个字符！"},
                                  {"txtBh", ";8００1?", "会员编号 8001 已经存在！"},
                                  {"txtBh", ";?", "请输入会员编号！"}};
  hands.type(kWindow, "77\n");
  for (const auto& [field, value, message] : cases) {
    hands.at(kWindow, [&cases, field = field, value = value](QWidget& shown) {
      for (const auto& each : cases) set(shown, each[0], "7");
      set(shown, field, value);
      okNow(shown);
    });
    hands.says("messageBox", message);
  }
  // A known card is shown and cannot be changed.
  hands.at(kWindow, [](QWidget& shown) {
    set(shown, "txtBh", ";8001?");
    shown.findChild<QLineEdit*>("txtBh")->setFocus();
  });
  hands.type(kWindow, "\n")
      .see(kWindow, kFields, "(8001)|(王芳)|(3)|()|(确定)@cmdCancel")
      .type(kWindow, "\n");
  dialog.init();
  EXPECT_TRUE(hands.idle());
  EXPECT_EQ(stored("count(*) as v from member"), "1");
}
