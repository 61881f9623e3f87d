#include "shell/frmEditPwd.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QPushButton>

#include "Hands.h"
#include "TestTill.h"
#include "saleslib/ClsLogin.h"

namespace {

class frmEditPwdTest : public testing::Test {
 protected:
  bool passwordOf3Is(const char* password) {
    ClsLogin login;
    login.Conn(*till_.pos.gConn);
    return login.Check("3", password);
  }
  QString field(const char* name) { return dialog_.findChild<QLineEdit*>(name)->text(); }

  TestTill till_;
  frmEditPwd dialog_{till_.pos};
  Hands hands_;
};

TEST_F(frmEditPwdTest, WhatFailsIsSaidAndTheRightPasswordChangesItAndLogsEverybodyOff) {
  till_.pos.gOperator = std::make_shared<ClsOperator>();
  till_.pos.gOperator->Init(*till_.pos.gConn, 1);
  hands_.type("frmEditPwd", "3").press("frmEditPwd", {Qt::Key_Return});
  hands_.type("frmEditPwd", "x' or ''='").press("frmEditPwd", {Qt::Key_Enter});
  hands_.at("frmEditPwd", [&](QWidget&) {
    dialog_.findChild<QLineEdit*>("txtNewPwd")->setText("新 '\"");
    Hands::pressNow(Qt::Key_Return);
  });
  hands_.at("frmMsg", [&](QWidget&) {
    EXPECT_EQ(field("txtNumber") + field("txtPassword") + field("txtNewPwd"), "3x' or ''='新 '\"");
    EXPECT_TRUE(passwordOf3Is("333"));
    EXPECT_EQ(till_.pos.gOperator->Id(), 1);
    Hands::pressNow(Qt::Key_Space);
  });
  hands_.at("frmEditPwd", [&](QWidget&) {
    QTest::keyClicks(dialog_.focusWidget(), "333");  // in place of the wrong one
    till_.pos.gConn->runScript(
        "create trigger broken before update on operators begin select raise(abort, 'disk'); end");
    Hands::pressNow(Qt::Key_Return);
    Hands::pressNow(Qt::Key_Return);
  });
  hands_.press("frmMsg", {Qt::Key_Space});
  hands_.at("frmEditPwd", [&](QWidget&) {
    EXPECT_EQ(till_.pos.gOperator->Id(), 1) << "who is at the till stays there";
    till_.pos.gConn->runScript("drop trigger broken");
    dialog_.findChild<QPushButton*>("cmdOk")->click();
  });
  EXPECT_EQ(dialog_.exec(), QDialog::Accepted);
  EXPECT_TRUE(passwordOf3Is("新 '\""));
  EXPECT_FALSE(till_.pos.gOperator);
}

TEST_F(frmEditPwdTest, AnEmptyNewPasswordCountsAndTheMappedKeysAct) {
  till_.pos.gKeyBoard.mEnter = 107;  // the "+" of the numeric pad
  const auto plus = [](QWidget& shown) {
    QTest::keyClick(shown.focusWidget(), Qt::Key_Plus, Qt::KeypadModifier);
  };
  hands_.type("frmEditPwd", "3").at("frmEditPwd", plus).type("frmEditPwd", "333");
  hands_.at("frmEditPwd", plus).at("frmEditPwd", plus);
  EXPECT_EQ(dialog_.exec(), QDialog::Accepted);
  EXPECT_TRUE(passwordOf3Is(""));
}

}  // namespace
