#include "shell/dlgApproval.h"

#include "Approvals.h"
#include "LoginFixture.h"
#include "shell/frmLogin.h"
#include "shell/frmMain.h"

/// The main window of a shop whose cashier may sell, and needs an approval for the settings.
class dlgApprovalTest : public LoginFixture {
 protected:
  static constexpr const char* kTexts = "lblSaid txtNumber txtPassword";

  dlgApprovalTest() {
    pos.gOperator = std::make_shared<ClsOperator>();
    pos.gOperator->Init(*pos.gConn, 1);
    askForApprovals(pos, {"sell"}, {"settings"});
    setParameter("Journal", "1");
    pos.loginBrake = LoginBrake([this] { return steady; });
  }
  void openSettings() {
    window.theMenu_MenuClick({"", "posset", 0});
    EXPECT_TRUE(hands.idle());
  }
  Hands& type(const QString& keys) { return hands.type("dlgApproval", keys); }
  Hands& see(const char* texts) { return hands.see("dlgApproval", kTexts, texts); }

  std::chrono::steady_clock::time_point steady{};
  int opened = 0;
  frmMain window{pos, {{"posset", {true, [this] { ++opened; }, Right::kSettings}}}};
};

TEST_F(dlgApprovalTest, OnlyWhoHasTheRightApprovesAndForOneTime) {
  setParameter("Journal", "1");
  see("张三没有这个权限。请有权限的人授权，Esc 放弃。||@txtNumber");
  type("1\n111\n");
  see("张三也不能授权：设置和导入商品。|1|@txtNumber");
  type("2\n111\n");
  see("用户编号或密码不正确！|2|@txtPassword");
  type("222\n");
  openSettings();
  EXPECT_EQ(opened, 1);
  type(";9003?\n");
  see("没有这张员工卡！||@txtNumber");
  type(kSwipes);
  openSettings();
  EXPECT_EQ(opened, 2);
  type(kGivesUp);
  openSettings();
  hands.at("dlgApproval", [](QWidget& shown) { shown.close(); });
  openSettings();
  EXPECT_EQ(opened, 2);
  EXPECT_EQ(pos.gOperator->Id(), 1) << "it goes on in the cashier's name";
  EXPECT_EQ(stored("group_concat(kind || coalesce(approver, '-')) as v from fact where touches ="
                   " 'settings'"),
            "approval_given2,approval_given2,approval_refused-,approval_refused-");
  setParameter("Approval", "0");
  openSettings();
  EXPECT_EQ(opened, 3);
}

TEST_F(dlgApprovalTest, WrongPasswordsSlowApprovalAndLoginDownAlike) {
  for (const char* keys : {"2\nx\n", "x\n"}) {
    type(keys);
    see("用户编号或密码不正确！|2|@txtPassword");
  }
  type("x\n");
  see("密码连续错了几次，请等 5 秒再试。|2|@txtPassword");
  type("222\n");
  see("密码连续错了几次，请等 5 秒再试。|2|@txtPassword");
  type("⎋");
  openSettings();
  frmLogin login(pos);
  logIn("1", "111").says("messageBox", "密码连续错了几次，请等 5 秒再试。");
  hands.at("frmLogin", [this](QWidget&) { steady += std::chrono::seconds(5); });
  hands.type("frmLogin", "111\n");
  EXPECT_EQ(login.goLogin(), frmLogin::kAccepted);
}
