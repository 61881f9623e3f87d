#include <gtest/gtest.h>

#include <QContextMenuEvent>
#include <QListWidget>

#include "Hands.h"
#include "app/KeyBoard.h"
#include "shell/ControlKeys.h"
#include "shell/HeldKeys.h"
#include "shell/Modal.h"
#include "shell/frmMenu.h"

// X11 repeats a key by a release and a press of one moment, which are not always marked as repeats.
class HeldKeysTest : public testing::Test {
 protected:
  void send(QWidget& window, QEvent::Type type) {
    QKeyEvent key(type, Qt::Key_Return, {}, 36, 0xff0d, 0, "\r");
    key.setTimestamp(now_);
    QCoreApplication::sendEvent(window.windowHandle(), &key);
  }
  void press(QWidget& window) {
    ++now_;
    send(window, QEvent::KeyPress);
  }
  void repeat(QWidget& window) {
    ++now_;
    send(window, QEvent::KeyRelease);
    send(window, QEvent::KeyPress);
  }
  /// Repeats that leave the window open, then another press.
  Hands::Step holdAndPressAnew() {
    return [this](QWidget& shown) {
      for (int times = 0; times < 3; ++times) {
        repeat(shown);
        ASSERT_TRUE(shown.isVisible()) << shown.objectName().toStdString();
      }
      send(shown, QEvent::KeyRelease);
      press(shown);
    };
  }

  const HeldKeys heldKeys_{qApp};
  quint64 now_ = 1000;
};

TEST_F(HeldKeysTest, RepeatsChooseAndConfirmNothing) {
  const KeyBoard keys;
  frmMenu menu(keys);
  menu.AddMenu("退出", "end");
  Hands hands;
  hands.at("frmMenu", [this](QWidget& shown) { press(shown); });
  EXPECT_EQ(menu.ShowMenu(0), "end");
  menu.MenuClick = [](const MenuItem&) { EXPECT_TRUE(askYesNo(nullptr, "退出吗？", "", true)); };
  hands.at("frmMenu", holdAndPressAnew()).at("messageBox", holdAndPressAnew());
  EXPECT_EQ(menu.ShowMenu(0), "end");
}

TEST_F(HeldKeysTest, ARepeatDoesNothingWhereTheFocusHasGoneMeanwhile) {
  QDialog window;
  QLineEdit before(&window), after(&window);
  int entered = 0;
  QObject::connect(&after, &QLineEdit::returnPressed, [&entered] { ++entered; });
  window.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  before.setFocus();
  press(window);
  after.setFocus();
  repeat(window);
  EXPECT_EQ(entered, 0);
  send(window, QEvent::KeyRelease);
  press(window);
  EXPECT_EQ(entered, 1);
}

TEST(ControlKeysTest, ListsGoByTheMapAndTheMenuKeyOpensNoEditingMenu) {
  KeyBoard keys;
  const ControlKeys controlKeys(qApp, keys);
  QListWidget list;
  list.addItems({"1", "2", "3"});
  keys.mUp = 40;  // exchanged
  keys.mDown = 38;
  const std::pair<Qt::Key, int> exchanged[] = {
      {Qt::Key_Up, 0}, {Qt::Key_Up, 1}, {Qt::Key_Up, 2}, {Qt::Key_Up, 2}, {Qt::Key_Down, 1}};
  for (const auto& [key, row] : exchanged) {
    QTest::keyClick(&list, key);
    EXPECT_EQ(list.currentRow(), row);
  }
  QLineEdit field;
  QContextMenuEvent menu(QContextMenuEvent::Keyboard, {}, {});
  QApplication::sendEvent(&field, &menu);
  EXPECT_FALSE(QApplication::activePopupWidget());
}
