#include <gmock/gmock.h>

#include <QAbstractItemView>

#include "Hands.h"
#include "SettingsTill.h"
#include "settings/KeyBox.h"
#include "settings/KeyTable.h"
#include "settings/frmHelp.h"
#include "settings/frmKeyset.h"

class frmKeysetTest : public testing::Test {
 protected:
  /// A new dialog over the map as it is now.
  void open() {
    dialog_ = std::make_unique<frmKeyset>(till_.pos);
    dialog_->open();
    ASSERT_TRUE(QTest::qWaitForWindowActive(dialog_.get()));
  }
  QString focus() { return dialog_->focusWidget()->objectName(); }
  /// Keys into a control.
  void type(const char* control, const QString& keys) {
    dialog_->findChild<QWidget*>(control)->setFocus();
    ASSERT_EQ(focus(), control);
    Hands::typeNow(keys);
  }
  void set(const char* field, const char* text) {
    dialog_->findChild<QLineEdit*>(field)->setText(text);
  }
  /// The quick keys, their fields and what has the focus.
  std::string quickKeys() {
    QString all;
    const QAbstractItemModel& list = *dialog_->findChild<QAbstractItemView*>("ListView1")->model();
    for (int row = 0; row < list.rowCount(); ++row) {
      all +=
          list.index(row, 0).data().toString() + " " + list.index(row, 1).data().toString() + "|";
    }
    return all.toStdString() + Hands::textsOf(*dialog_, "txtKeyInt txtKeyBm");
  }

  SettingsTill till_{"[QK]\r\n0QK=65;1001\r\n1QK=66;1002\r\n2QK=67;1003\r\n"};
  std::unique_ptr<frmKeyset> dialog_;
};

TEST_F(frmKeysetTest, ABoxTakesTheKeyThatIsPressedInIt) {
  const struct {
    const char *box, *key;
    int code;
    int KeyBoard::*field;
  } cases[] = {{"txtF2", "q", 81, &KeyBoard::mF2},
               {"txtEnter", " ", 32, &KeyBoard::mEnter},
               {"txtEsc", "\n", 13, &KeyBoard::mEsc},
               {"txtF1", "⎋", 27, &KeyBoard::mF1},
               {"txtRight", "\b", 8, &KeyBoard::mRight}};
  open();
  for (const auto& each : cases) {
    type(each.box, each.key);
    EXPECT_EQ(Hands::textsOf(*dialog_, each.box), std::to_string(each.code) + "@" + each.box);
  }
  EXPECT_EQ(till_.pos.gKeyBoard.mF2, 113) << "before it is confirmed";
  QTest::keyClick(dialog_->focusWidget(), Qt::Key_O, Qt::AltModifier);
  QTRY_VERIFY(!dialog_->isVisible());
  KeyBoard saved;
  saved.LoadSet(till_.pos.configIni);
  for (const auto& each : cases) {
    EXPECT_EQ(till_.pos.gKeyBoard.*each.field, each.code) << each.box;
    EXPECT_EQ(saved.*each.field, each.code) << each.box;
  }
}

TEST_F(frmKeysetTest, MovingBetweenTheBoxesSetsNoKey) {
  open();
  const auto texts = [this] {
    QString all;
    for (const KeyBox* box : dialog_->findChildren<KeyBox*>()) all += box->text() + " ";
    return all;
  };
  const QString before = texts();
  const std::tuple<Qt::Key, Qt::KeyboardModifiers, const char*> moves[] = {
      {Qt::Key_Tab, {}, "txtEsc"},
      {Qt::Key_Tab, {}, "txtF1"},
      {Qt::Key_Tab, Qt::ShiftModifier, "txtEsc"},
      {Qt::Key_D, Qt::AltModifier, "txtDown"}};
  for (const auto& [key, modifiers, next] : moves) {
    QTest::keyClick(dialog_->focusWidget(), key, modifiers);
    // The key comes up in the next box.
    QTest::keyRelease(dialog_->focusWidget(), modifiers == Qt::AltModifier ? Qt::Key_Alt : key);
    EXPECT_EQ(focus(), next);
  }
  EXPECT_EQ(texts(), before);
}

TEST_F(frmKeysetTest, QuickKeysAreAddedChangedAndDeleted) {
  open();
  type("txtKeyInt", "d1004\n\n");
  EXPECT_EQ(quickKeys(), "65 1001|66 1002|67 1003|68 1004||@txtKeyInt");
  Hands hands;
  hands.says("messageBox", "该健已有快捷设置！");
  type("txtKeyInt", "d9\n\n");
  type("cmdEdit", "\n");
  EXPECT_EQ(quickKeys(), "65 1001|66 1002|67 1003|68 9||@txtKeyInt");
  for (int twice = 0; twice < 2; ++twice) {
    type("txtKeyInt", "a");
    type("cmdDel", "\n");
    EXPECT_EQ(quickKeys(), "66 1002|67 1003|68 9||@txtKeyInt")
        << "the second time it is not on the list";
  }
  type("ListView1", "↓↓\n");
  EXPECT_EQ(quickKeys(), "66 1002|67 1003|68 9|67|1003@txtKeyBm");
  type("cmdDel", "\n");
  type("cmdOk", "\n");
  EXPECT_EQ(till_.stored("QK", "0QK") + " " + till_.stored("QK", "1QK"), "66;1002 68;9");
  ASSERT_EQ(till_.pos.gKeyBoard.QK.size(), 2U);
  EXPECT_EQ(till_.pos.gKeyBoard.QK[1].QK_Bm, "9");
}

TEST_F(frmKeysetTest, APastedTextIsNoKeyAndLeavingKeepsEverything) {
  open();
  set("txtKeyInt", "pasted");
  type("cmdAdd", "\n");
  EXPECT_EQ(focus(), "txtKeyInt");
  set("txtF5", "pasted");
  type("cmdOk", "\n");
  EXPECT_EQ(till_.stored("KeyBoard", "F5"), "116");

  till_.pos.gKeyBoard.mEsc = 'X';
  const std::string before = till_.fileText();
  open();
  type("txtF5", "k");
  type("txtKeyInt", "d1X\n");  // a mapped letter is typed
  EXPECT_EQ(quickKeys(), "65 1001|66 1002|67 1003|68|1X@cmdAdd");
  Hands::typeNow("⎋");
  EXPECT_TRUE(dialog_->isVisible()) << "Esc is not the mapped key";
  Hands::typeNow("x");
  EXPECT_FALSE(dialog_->isVisible());
  EXPECT_EQ(till_.pos.gKeyBoard.mF5, 116);
  EXPECT_EQ(till_.fileText(), before);
}

TEST(KeyTable, SaysWhatTheKeysDoAsTheyAreMapped) {
  KeyBoard keys;
  keys.mF2 = 'Q';
  keys.mF4 = 0;
  keys.mEsc = 'W';
  keys.QK = {{'Q', "1"}, {65, ""}, {65, "1001"}, {65, "1002"}, {0, "2"}};  // one of them rings
  std::string said;
  for (const KeyGroup& group : keyTable(keys))
    for (const auto& [key, does] : group.rows) said += (key + "=" + does + " ").toStdString();
  EXPECT_THAT(said, testing::HasSubstr("F1=结账 Q=刷会员卡 F3=增加会员 –=删除最后一行 F5=挂单 "));
  EXPECT_THAT(said, testing::EndsWith("F10=主菜单的更多功能 A=录入商品 1001 "));
  frmHelp help(keys);
  help.open();
  Hands::typeNow("⎋↓");
  EXPECT_TRUE(help.isVisible());
  Hands::typeNow("w");
  EXPECT_FALSE(help.isVisible()) << "left by the mapped Esc";
}
