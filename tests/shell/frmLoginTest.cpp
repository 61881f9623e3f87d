#include "shell/frmLogin.h"

#include <QClipboard>
#include <QGuiApplication>

#include "LoginFixture.h"

class frmLoginTest : public LoginFixture {
 protected:
  frmLogin login{pos};
};

TEST_F(frmLoginTest, ARefusalKeepsTheTextsUntilTypedOverAndCancelLogsNobodyIn) {
  logIn("1' or '1'='1", "wrong").says("messageBox", "用户编号或密码不正确！");
  hands.see("frmLogin", "txtNumber txtPassword", "1' or '1'='1|wrong@txtPassword");
  hands.type("frmLogin", "2").see("frmLogin", "txtPassword", "2@txtPassword");
  hands.type("frmLogin", "⎋");
  EXPECT_EQ(login.goLogin(), frmLogin::kCancelled);
  EXPECT_FALSE(pos.gOperator);
}

TEST_F(frmLoginTest, WithoutTheRightToSellNobodyIsLoggedIn) {
  logIn("2", "222").says("messageBox", "没有权限！");
  hands.at("frmLogin", [](QWidget& shown) { shown.close(); });
  EXPECT_EQ(login.goLogin(), frmLogin::kAccepted) << "closing the window keeps the last code";
  EXPECT_FALSE(pos.gOperator);
}

TEST_F(frmLoginTest, ThePasswordIsNotCopied) {
  auto& password = *login.findChild<QLineEdit*>("txtPassword");
  password.setText("111");
  QGuiApplication::clipboard()->setText("before");
  for (const auto copying : {QKeySequence::SelectAll, QKeySequence::Copy, QKeySequence::Cut})
    QTest::keySequence(&password, copying);
  EXPECT_EQ(QGuiApplication::clipboard()->text(), "before");
  EXPECT_EQ(password.contextMenuPolicy(), Qt::NoContextMenu);
}

TEST_F(frmLoginTest, KeysFollowTheMapAndThePlainEnterIsTheMappedOne) {
  pos.gKeyBoard.mEnter = 'E';
  pos.gKeyBoard.mEsc = 'Q';
  hands.type("frmLogin", "1⎋").press("frmLogin", {Qt::Key_E}).type("frmLogin", "111\n");
  EXPECT_EQ(login.goLogin(), frmLogin::kAccepted);
  ASSERT_TRUE(pos.gOperator);
  EXPECT_EQ(pos.gOperator->Id(), 1);
  EXPECT_EQ(login.findChild<QLineEdit*>("txtPassword")->text(), "");
}
