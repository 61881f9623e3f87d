#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QPushButton>

#include "Hands.h"
#include "SettingsTill.h"
#include "settings/KeyBox.h"
#include "settings/frmKeyset.h"

namespace {

class frmKeysetTest : public testing::Test {
 protected:
  /// A new dialog over the map as it is now.
  void open() {
    dialog_ = std::make_unique<frmKeyset>(till_.pos);
    dialog_->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(dialog_.get()));
  }
  template <typename Control>
  Control& control(const char* name) {
    return *dialog_->findChild<Control*>(name);
  }
  QString text(const char* name) { return control<QLineEdit>(name).text(); }
  QString focus() { return dialog_->focusWidget()->objectName(); }
  void focusOn(const char* name) {
    control<QWidget>(name).setFocus();
    ASSERT_EQ(focus(), name);
  }
  void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(dialog_->focusWidget(), key, modifiers);
  }
  /// A key in the quick key's box, then its item code and Enter, which goes on to "增加".
  void typeQuickKey(Qt::Key key, const QString& item) {
    focusOn("txtKeyInt");
    press(key);
    ASSERT_EQ(focus(), "txtKeyBm");
    QTest::keyClicks(dialog_->focusWidget(), item);
    press(Qt::Key_Return);
    ASSERT_EQ(focus(), "cmdAdd");
  }
  void click(const char* name) {
    focusOn(name);
    press(Qt::Key_Return);
  }
  QString rows() {
    QString all;
    const QAbstractItemModel& list = *control<QAbstractItemView>("ListView1").model();
    for (int row = 0; row < list.rowCount(); ++row)
      all +=
          list.index(row, 0).data().toString() + " " + list.index(row, 1).data().toString() + "|";
    return all;
  }

  SettingsTill till_{"[QK]\r\n0QK=65;1001\r\n1QK=66;1002\r\n2QK=67;1003\r\n"};
  std::unique_ptr<frmKeyset> dialog_;
};

TEST_F(frmKeysetTest, ABoxTakesTheKeyThatIsPressedInIt) {
  const struct {
    const char* box;
    Qt::Key key;
    int code;
    int KeyBoard::*field;
  } cases[] = {
      {"txtF2", Qt::Key_F7, 118, &KeyBoard::mF2},
      {"txtEnter", Qt::Key_Space, 32, &KeyBoard::mEnter},
      {"txtEsc", Qt::Key_Return, 13, &KeyBoard::mEsc},
      {"txtF1", Qt::Key_Escape, 27, &KeyBoard::mF1},
      {"txtRight", Qt::Key_Backspace, 8, &KeyBoard::mRight},
  };
  open();
  for (const auto& each : cases) {
    focusOn(each.box);
    press(each.key);
    EXPECT_EQ(text(each.box), QString::number(each.code));
    EXPECT_EQ(focus(), each.box);
  }
  EXPECT_EQ(till_.pos.gKeyBoard.mF2, 113) << "before it is confirmed";
  press(Qt::Key_O, Qt::AltModifier);
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
  // The key comes up in the next box.
  const auto move = [this](Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    press(key, modifiers);
    QTest::keyRelease(dialog_->focusWidget(), modifiers == Qt::AltModifier ? Qt::Key_Alt : key);
    return focus();
  };
  const QString before = texts();
  EXPECT_EQ(move(Qt::Key_Tab), "txtEsc");
  EXPECT_EQ(move(Qt::Key_Tab), "txtF1");
  EXPECT_EQ(move(Qt::Key_Tab, Qt::ShiftModifier), "txtEsc");
  EXPECT_EQ(move(Qt::Key_D, Qt::AltModifier), "txtDown");
  EXPECT_EQ(texts(), before);
}

TEST_F(frmKeysetTest, QuickKeysAreAddedChangedAndDeleted) {
  open();
  typeQuickKey(Qt::Key_D, "1004");
  press(Qt::Key_Return);
  EXPECT_EQ(focus(), "txtKeyInt");
  EXPECT_EQ(rows(), "65 1001|66 1002|67 1003|68 1004|");

  std::vector<std::string> said;
  Hands hands;
  hands.confirm(said);
  typeQuickKey(Qt::Key_D, "9");
  press(Qt::Key_Return);
  EXPECT_EQ(said, std::vector<std::string>{"该健已有快捷设置！"});
  click("cmdEdit");
  EXPECT_EQ(rows(), "65 1001|66 1002|67 1003|68 9|");

  for (int twice = 0; twice < 2; ++twice) {
    focusOn("txtKeyInt");
    press(Qt::Key_A);
    click("cmdDel");
    EXPECT_EQ(rows(), "66 1002|67 1003|68 9|") << "the second time it is not on the list";
  }

  focusOn("ListView1");
  press(Qt::Key_Down);
  press(Qt::Key_Down);
  press(Qt::Key_Return);
  EXPECT_EQ(text("txtKeyInt") + ";" + text("txtKeyBm"), "67;1003");
  click("cmdDel");
  click("cmdOk");
  EXPECT_EQ(till_.stored("QK", "0QK") + " " + till_.stored("QK", "1QK"), "66;1002 68;9");
  ASSERT_EQ(till_.pos.gKeyBoard.QK.size(), 2U);
  EXPECT_EQ(till_.pos.gKeyBoard.QK[1].QK_Bm, "9");
}

TEST_F(frmKeysetTest, APastedTextIsNoKeyAndLeavingKeepsEverything) {
  open();
  control<QLineEdit>("txtKeyInt").setText("pasted");
  click("cmdAdd");
  EXPECT_EQ(focus(), "txtKeyInt");
  control<QLineEdit>("txtF5").setText("pasted");
  click("cmdOk");
  EXPECT_EQ(till_.stored("KeyBoard", "F5"), "116");

  till_.pos.gKeyBoard.mEsc = 'X';
  const std::string before = till_.fileText();
  open();
  focusOn("txtF5");
  press(Qt::Key_K);
  typeQuickKey(Qt::Key_D, "1X");
  EXPECT_EQ(text("txtKeyBm"), "1X") << "a mapped letter is typed";
  press(Qt::Key_Escape);
  EXPECT_TRUE(dialog_->isVisible()) << "Esc is not the mapped key";
  press(Qt::Key_X);
  EXPECT_FALSE(dialog_->isVisible());
  EXPECT_EQ(till_.pos.gKeyBoard.mF5, 116);
  EXPECT_EQ(till_.fileText(), before);
}

}  // namespace
