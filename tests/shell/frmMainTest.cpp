#include "shell/frmMain.h"

#include <QGuiApplication>

#include "LoginFixture.h"
#include "shell/BackupLine.h"

using enum Qt::Key;

/// Runs the event loop until the main window ends the program, as the till does. The menu:
/// 前台销售, 修改密码, 退出系统.
class frmMainTest : public LoginFixture {
 protected:
  frmMainTest() {
    const auto note = [this](const char* name) { return [this, name] { opened += name; }; };
    const auto fail = [this] {
      opened += "keyset ";
      throw Failure("locked");
    };
    window = std::make_unique<frmMain>(
        pos, std::map<QString, frmMain::Screen>{{"sell", {true, note("sell ")}},
                                                {"editpwd", {false, note("editpwd ")}},
                                                {"keyset", {true, fail}}});
  }
  void runUntilEnd(const char* screens) {
    window->show();
    EXPECT_EQ(QApplication::exec(), 0);
    EXPECT_TRUE(hands.idle());
    EXPECT_FALSE(QApplication::activeModalWidget());
    EXPECT_EQ(opened, screens);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr) << "the pointer is back";
  }
  Hands& menu(const char* keys) { return hands.type("frmMenu", keys); }

  std::unique_ptr<frmMain> window;
  std::string opened;
};

TEST_F(frmMainTest, OnlyAProtectedScreenAsksForALoginAndOnlyOnce) {
  window->theMenu_MenuClick({"", "search", 0});  // a screen that is not there
  EXPECT_NE(QGuiApplication::overrideCursor(), nullptr);
  menu("↓\n");
  menu("↑⎋\n").type("frmLogin", "⎋");
  menu("\n");
  logIn("1", "111");
  menu("\n");
  menu("↑\n");
  runUntilEnd("editpwd sell sell ");
  EXPECT_FALSE(pos.gOperator);
}

TEST_F(frmMainTest, TheFurtherMenuOpensItsScreensAndChangesTheOperator) {
  menu("\n");
  logIn("1", "111").press("frmMenu", {Key_Menu});
  menu("\n").says("messageBox", "locked");                           // keyset; the program goes on
  hands.press("frmMenu", {Key_F10}).press("frmMenu", {Key_Escape});  // the main menu again
  hands.at("frmMenu", [](QWidget& shown) { QTest::mouseClick(&shown, Qt::RightButton); });
  menu("↓\n").at("frmLogin", [this](QWidget&) {  // another operator
    EXPECT_FALSE(pos.gOperator);
    Hands::pressNow(Key_Escape);
  });
  menu("↑\n");
  runUntilEnd("sell keyset ");
}

TEST_F(frmMainTest, TheEndSaysWhenItCannotBackUp) {
  setParameter("BackupOnExit", "1");
  std::filesystem::create_directory(folder.path() / "data/pos3.mdb");
  menu("↑\n").says("messageBox", "数据备份没有完成：");
  runUntilEnd("");
}

TEST_F(frmMainTest, ALogOffThatCannotBeStoredIsSaidAndTheEndBacksUpAllTheSame) {
  setParameter("BackupOnExit", "1");
  pos.gOperator = std::make_shared<ClsOperator>();
  pos.gOperator->Init(*pos.gConn, 1);
  pos.gConn->run("delete from operators where id = 1");
  hands.press("frmMenu", {Key_Menu});
  menu("↓\n").says("messageBox", "操作员 1 已被删除").at("frmMenu", [this](QWidget&) {
    EXPECT_TRUE(pos.gOperator) << "nobody else is asked for";
    window->windowHandle()->close();  // as from its title bar
  });
  hands.says("messageBox", "操作员注销没有完成：操作员 1 已被删除，没有保存！\n数据备份已完成。");
  runUntilEnd("");
  EXPECT_TRUE(std::filesystem::exists(folder.path() / "data/pos3.mdb"));
}

TEST_F(frmMainTest, TheEndMakesTodaysBackupOnceTheyAreTurnedOn) {
  EXPECT_FALSE(pos.backups);
  ASSERT_TRUE(pos.configIni.write("Till", "Backups", "1"));
  pos.start();
  EXPECT_EQ(BackupLine::ageText(*pos.backups), "账目备份：还没有");
  menu("↑\n");
  runUntilEnd("");
  EXPECT_EQ(BackupLine::ageText(*pos.backups), "账目备份：今天");
}

TEST_F(frmMainTest, ClosingTheMenuWindowEndsTheProgram) {
  hands.at("frmMenu", [](QWidget& shown) { shown.close(); });
  runUntilEnd("");
}
