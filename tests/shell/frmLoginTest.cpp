#include "shell/frmLogin.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QLineEdit>

#include "Hands.h"
#include "TestTill.h"

namespace {

class frmLoginTest : public testing::Test {
 protected:
  frmLoginTest() : login_(till_.pos) {}

  /// Number, Enter, password, Enter.
  Hands& enter(const QString& number, const QString& password) {
    return hands_.type("frmLogin", number)
        .press("frmLogin", {Qt::Key_Return})
        .type("frmLogin", password)
        .press("frmLogin", {Qt::Key_Return});
  }
  QString field(const char* name) { return login_.findChild<QLineEdit*>(name)->text(); }

  TestTill till_;
  frmLogin login_;
  Hands hands_;
  std::vector<std::string> said_;
};

TEST_F(frmLoginTest, ARefusalKeepsTheTextsUntilTypedOverAndCancelLogsNobodyIn) {
  enter("1' or '1'='1", "wrong").confirm(said_);
  hands_.at("frmLogin", [&](QWidget&) {
    EXPECT_EQ(field("txtNumber") + " " + field("txtPassword"), "1' or '1'='1 wrong");
    Hands::pressNow(Qt::Key_2);
    EXPECT_EQ(field("txtPassword"), "2");
    Hands::pressNow(Qt::Key_Escape);
  });
  EXPECT_EQ(login_.goLogin(), frmLogin::kCancelled);
  EXPECT_FALSE(till_.pos.gOperator);
  EXPECT_EQ(said_.at(0), "用户编号或密码不正确！");
}

TEST_F(frmLoginTest, WithoutTheRightToSellNobodyIsLoggedIn) {
  enter("3", "333").confirm(said_);
  hands_.at("frmLogin", [](QWidget& shown) { shown.close(); });
  EXPECT_EQ(login_.goLogin(), frmLogin::kAccepted) << "closing the window keeps the last code";
  EXPECT_EQ(said_.at(0), "没有权限！");
  EXPECT_FALSE(till_.pos.gOperator);
}

TEST_F(frmLoginTest, ThePasswordIsNotCopied) {
  auto& password = *login_.findChild<QLineEdit*>("txtPassword");
  password.setText("111");
  QGuiApplication::clipboard()->setText("before");
  for (const auto copying : {QKeySequence::SelectAll, QKeySequence::Copy, QKeySequence::Cut})
    QTest::keySequence(&password, copying);
  EXPECT_EQ(QGuiApplication::clipboard()->text(), "before");
  EXPECT_EQ(password.contextMenuPolicy(), Qt::NoContextMenu);
}

TEST_F(frmLoginTest, KeysFollowTheMapAndThePlainEnterIsTheMappedOne) {
  till_.pos.gKeyBoard.mEnter = 'E';
  till_.pos.gKeyBoard.mEsc = 'Q';
  hands_.type("frmLogin", "1").press("frmLogin", {Qt::Key_Escape, Qt::Key_E});
  hands_.type("frmLogin", "111").press("frmLogin", {Qt::Key_Return});
  EXPECT_EQ(login_.goLogin(), frmLogin::kAccepted);
  ASSERT_TRUE(till_.pos.gOperator);
  EXPECT_EQ(till_.pos.gOperator->Id(), 1);
  EXPECT_EQ(field("txtPassword"), "");
}

}  // namespace
