#include "shell/frmEditPwd.h"

#include <QPushButton>

#include "LoginFixture.h"
#include "saleslib/ClsLogin.h"

constexpr const char* kWindow = "frmEditPwd";
constexpr const char* kFields = "txtNumber txtPassword txtNewPwd";

class frmEditPwdTest : public LoginFixture {
 protected:
  bool passwordOf2Is(const char* password) {
    ClsLogin login;
    login.Conn(*pos.gConn);
    return login.Check("2", password);
  }

  frmEditPwd dialog{pos};
};

TEST_F(frmEditPwdTest, WhatFailsIsSaidAndTheRightPasswordChangesItAndLogsEverybodyOff) {
  pos.gOperator = std::make_shared<ClsOperator>();
  pos.gOperator->Init(*pos.gConn, 1);
  hands.type(kWindow, "2\nx' or ''='\n").at(kWindow, [&](QWidget&) {
    dialog.findChild<QLineEdit*>("txtNewPwd")->setText("新 '\"");
    Hands::pressNow(Qt::Key_Return);
  });
  hands.says("frmMsg", "用户编号或密码不正确！");
  hands.see(kWindow, kFields, "2|x' or ''='|新 '\"@txtPassword");
  hands.at(kWindow, [this](QWidget&) {
    EXPECT_TRUE(passwordOf2Is("222"));
    breakStore("update on operators");
    Hands::typeNow("222\n\n");  // in place of the wrong one
  });
  hands.says("frmMsg", "数据与已有的记录冲突：disk").at(kWindow, [&](QWidget&) {
    EXPECT_EQ(pos.gOperator->Id(), 1) << "who is at the till stays there";
    mendStore();
    dialog.findChild<QPushButton*>("cmdOk")->click();
  });
  EXPECT_EQ(dialog.exec(), QDialog::Accepted);
  EXPECT_TRUE(passwordOf2Is("新 '\""));
  EXPECT_FALSE(pos.gOperator);
}

TEST_F(frmEditPwdTest, AnEmptyNewPasswordCountsAndTheMappedKeysAct) {
  pos.gKeyBoard.mEnter = 107;  // the "+" of the numeric pad
  const auto plus = [](QWidget& shown) {
    QTest::keyClick(shown.focusWidget(), Qt::Key_Plus, Qt::KeypadModifier);
  };
  hands.type(kWindow, "2").at(kWindow, plus).type(kWindow, "222").at(kWindow, plus);
  hands.at(kWindow, plus);
  EXPECT_EQ(dialog.exec(), QDialog::Accepted);
  EXPECT_TRUE(passwordOf2Is(""));
}
