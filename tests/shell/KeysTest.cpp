#include <gtest/gtest.h>

#include <QContextMenuEvent>
#include <QLineEdit>
#include <QListWidget>

#include "Hands.h"
#include "app/KeyBoard.h"
#include "shell/ControlKeys.h"
#include "shell/HeldKeys.h"
#include "shell/Modal.h"
#include "shell/frmMenu.h"

namespace {

// X11 repeats a key by a release and a press of one moment, which are not always marked as repeats.
TEST(HeldKeysTest, RepeatsChooseAndConfirmNothing) {
  const HeldKeys heldKeys(qApp);
  const KeyBoard keys;
  frmMenu menu(keys);
  menu.AddMenu("退出", "end");
  quint64 now = 1000;
  const auto send = [&now](QEvent::Type type) {
    QKeyEvent key(type, Qt::Key_Return, {}, 36, 0xff0d, 0, "\r");
    key.setTimestamp(now);
    QCoreApplication::sendEvent(QApplication::activeModalWidget()->windowHandle(), &key);
  };
  const auto pressAnew = [&](QWidget&) {
    send(QEvent::KeyRelease);
    ++now;
    send(QEvent::KeyPress);
  };
  const auto holdAndPressAnew = [&](QWidget& shown) {
    for (int repeats = 0; repeats < 3; ++repeats, ++now) {
      send(QEvent::KeyRelease);
      send(QEvent::KeyPress);
      ASSERT_TRUE(shown.isVisible()) << shown.objectName().toStdString();
    }
    pressAnew(shown);
  };
  Hands hands;
  hands.at("frmMenu", pressAnew);
  EXPECT_EQ(menu.ShowMenu(0), "end");
  menu.MenuClick = [](const MenuItem&) { EXPECT_TRUE(askYesNo(nullptr, "退出吗？", "", true)); };
  hands.at("frmMenu", holdAndPressAnew).at("messageBox", holdAndPressAnew);
  EXPECT_EQ(menu.ShowMenu(0), "end");
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

}  // namespace
