#include "shell/frmMain.h"

#include <gtest/gtest.h>

#include <QGuiApplication>

#include "Hands.h"
#include "TestTill.h"
#include "base/Failure.h"
#include "shell/BackupLine.h"

namespace {

using enum Qt::Key;

/// Runs the event loop until the main window ends the program, as the till does.
class frmMainTest : public testing::Test {
 protected:
  void open() {
    const auto note = [this](const char* name) { return [this, name] { opened_ += name; }; };
    const auto fail = [this] {
      opened_ += "keyset ";
      throw Failure("locked");
    };
    window_ = std::make_unique<frmMain>(
        till_.pos, std::map<QString, frmMain::Screen>{{"sell", {true, note("sell ")}},
                                                      {"editpwd", {false, note("editpwd ")}},
                                                      {"keyset", {true, fail}}});
    window_->show();
  }
  void runUntilEnd() {
    if (!window_) open();
    EXPECT_EQ(QApplication::exec(), 0);
    EXPECT_TRUE(hands_.idle());
    EXPECT_FALSE(QApplication::activeModalWidget());
  }
  void logIn() {
    hands_.type("frmLogin", "1").press("frmLogin", {Key_Return});
    hands_.type("frmLogin", "111").press("frmLogin", {Key_Return});
  }
  void chooseEnd() { hands_.press("frmMenu", {Key_Up, Key_Return}); }

  TestTill till_;
  std::unique_ptr<frmMain> window_;
  Hands hands_;
  std::string opened_;
};

// The menu of the test: 前台销售, 修改密码, 退出系统.
TEST_F(frmMainTest, OnlyAProtectedScreenAsksForALoginAndOnlyOnce) {
  open();
  window_->theMenu_MenuClick({"", "search", 0});  // a screen that is not there
  hands_.press("frmMenu", {Key_Down, Key_Return});
  hands_.press("frmMenu", {Key_Up, Key_Escape, Key_Return}).press("frmLogin", {Key_Escape});
  hands_.at("frmMenu", [this](QWidget&) {
    EXPECT_EQ(opened_, "editpwd ");
    Hands::pressNow(Key_Return);
  });
  logIn();
  hands_.press("frmMenu", {Key_Return}).press("frmMenu", {Key_Up, Key_Return});
  runUntilEnd();
  EXPECT_EQ(opened_, "editpwd sell sell ");
  EXPECT_FALSE(till_.pos.gOperator);
}

TEST_F(frmMainTest, TheFurtherMenuOpensItsScreensAndChangesTheOperator) {
  hands_.press("frmMenu", {Key_Return});
  logIn();
  hands_.press("frmMenu", {Key_Menu}).press("frmMenu", {Key_Return});  // keyset
  std::vector<std::string> said;
  hands_.confirm(said);                                               // the program goes on
  hands_.press("frmMenu", {Key_F10}).press("frmMenu", {Key_Escape});  // the main menu again
  hands_.at("frmMenu", [](QWidget& menu) { QTest::mouseClick(&menu, Qt::RightButton); });
  hands_.press("frmMenu", {Key_Down, Key_Return});  // another operator
  hands_.at("frmLogin", [this](QWidget&) {
    EXPECT_FALSE(till_.pos.gOperator);
    Hands::pressNow(Key_Escape);
  });
  chooseEnd();
  runUntilEnd();
  EXPECT_EQ(opened_, "sell keyset ");
}

TEST_F(frmMainTest, TheEndSaysWhenItCannotBackUp) {
  ASSERT_EQ(till_.pos.gSysParam.set("BackupOnExit", "1"), "");
  std::filesystem::create_directory(till_.folder.path() / "data/pos3.mdb");
  std::vector<std::string> said;
  chooseEnd();
  hands_.confirm(said);
  runUntilEnd();
  EXPECT_TRUE(said.at(0).starts_with("数据备份没有完成：")) << said[0];
}

TEST_F(frmMainTest, ALogOffThatCannotBeStoredIsSaidAndTheEndBacksUpAllTheSame) {
  ASSERT_EQ(till_.pos.gSysParam.set("BackupOnExit", "1"), "");
  till_.pos.gOperator = std::make_shared<ClsOperator>();
  till_.pos.gOperator->Init(*till_.pos.gConn, 1);
  till_.pos.gConn->run("delete from operators where id = 1");
  std::vector<std::string> said;
  hands_.press("frmMenu", {Key_Menu}).press("frmMenu", {Key_Down, Key_Return}).confirm(said);
  hands_.at("frmMenu", [this](QWidget&) {
    EXPECT_TRUE(till_.pos.gOperator) << "nobody else is asked for";
    window_->windowHandle()->close();  // as from its title bar
  });
  hands_.confirm(said);
  runUntilEnd();
  EXPECT_NE(said.at(0).find("操作员 1 已被删除"), std::string::npos) << said[0];
  EXPECT_EQ(said.at(1), "操作员注销没有完成：" + said[0] + "\n数据备份已完成。");
  EXPECT_TRUE(std::filesystem::exists(till_.folder.path() / "data/pos3.mdb"));
}

TEST_F(frmMainTest, TheEndMakesTodaysBackupOnceTheyAreTurnedOn) {
  EXPECT_FALSE(till_.pos.backups);
  ASSERT_TRUE(till_.pos.configIni.write("Till", "Backups", "1"));
  till_.pos.start();
  EXPECT_EQ(BackupLine::ageText(*till_.pos.backups), "账目备份：还没有");
  chooseEnd();
  runUntilEnd();
  EXPECT_EQ(BackupLine::ageText(*till_.pos.backups), "账目备份：今天");
}

TEST_F(frmMainTest, ClosingTheMenuWindowEndsTheProgramAndBringsThePointerBack) {
  EXPECT_NE(QGuiApplication::overrideCursor(), nullptr);
  hands_.at("frmMenu", [](QWidget& menu) { menu.close(); });
  runUntilEnd();
  EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
  EXPECT_EQ(opened_, "");
}

}  // namespace
