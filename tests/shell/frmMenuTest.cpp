#include "shell/frmMenu.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QLabel>
#include <QScreen>

#include "Hands.h"
#include "app/KeyBoard.h"

namespace {

class frmMenuTest : public testing::Test {
 protected:
  frmMenuTest() : menu_(keys_) {
    menu_.MenuClick = [this](const MenuItem& Menu) { clicked_.push_back(Menu); };
  }
  void fill(int count) {
    for (int index = 0; index < count; ++index)
      menu_.AddMenu(QString("商品 %1").arg(index), QString::number(index + 1));
  }
  QString show(std::initializer_list<Qt::Key> presses, int mode = 0) {
    Hands hands;
    hands.press("frmMenu", presses);
    return menu_.ShowMenu(mode);
  }

  KeyBoard keys_;
  frmMenu menu_;
  std::vector<MenuItem> clicked_;
};

TEST_F(frmMenuTest, WithoutEntriesSaysSo) {
  Hands hands;
  QString text;
  hands.at("messageBox", [&](QWidget& box) {
    text = box.findChild<QLabel*>("qt_msgbox_label")->text();
    Hands::pressNow(Qt::Key_Return);
  });
  EXPECT_EQ(menu_.ShowMenu(0), "");
  EXPECT_EQ(text, "无菜单项");
}

TEST_F(frmMenuTest, TheHighlightWrapsAndIsKeptBetweenShowings) {
  fill(5);
  using enum Qt::Key;
  EXPECT_EQ(show({Key_Up, Key_Return}), "5");
  EXPECT_EQ(show({Key_Return}), "5");
  EXPECT_EQ(show({Key_Down, Key_Enter}), "1");
  EXPECT_EQ(show({Key_Left, Key_Right, Key_Tab, Key_X, Key_Down, Key_Return}), "2");
  EXPECT_EQ(show({Key_Escape}), "");
  ASSERT_EQ(clicked_.size(), 4U);
  EXPECT_EQ(clicked_.back().title, "商品 1");
  EXPECT_EQ(clicked_.back().Key, "2");
  EXPECT_EQ(clicked_.back().Index, 1);
}

TEST_F(frmMenuTest, EscLeavesOnlyAMenuOfModeZero) {
  fill(2);
  using enum Qt::Key;
  EXPECT_EQ(show({Key_Escape, Key_Down, Key_Return}, 1), "2");
}

TEST_F(frmMenuTest, MappedKeysAreTestedInTheOrderUpDownEnterEsc) {
  fill(3);
  keys_.mUp = keys_.mEsc = 'W';
  keys_.mEnter = 107;
  Hands hands;
  hands.at("frmMenu", [](QWidget& shown) {
    for (const Qt::Key ignored : {Qt::Key_Up, Qt::Key_Escape, Qt::Key_Return})
      QTest::keyClick(&shown, ignored);
    QTest::keyClick(&shown, Qt::Key_W);
    QTest::keyClick(&shown, Qt::Key_Plus, Qt::KeypadModifier);
  });
  EXPECT_EQ(menu_.ShowMenu(0), "3");
}

TEST_F(frmMenuTest, ThePointerHighlightsAndClicks) {
  fill(3);
  Hands hands;
  hands.at("frmMenu", [this](QWidget& shown) {
    auto* entries = shown.findChild<QWidget*>("lblMenu");
    const int row = entries->height() / 3;
    QTest::mouseMove(entries, QPoint(20, row + row / 2));
    EXPECT_EQ(menu_.currentIndex(), 1);
    QTest::mouseClick(entries, Qt::LeftButton, {}, QPoint(20, 2 * row + row / 2));
  });
  EXPECT_EQ(menu_.ShowMenu(1), "3");
}

TEST_F(frmMenuTest, TenThousandEntriesOpenAtOnceAndStayOnTheScreen) {
  const QString longName = QString("一种名字很长的商品 Size 500 ml ").repeated(6);
  for (int index = 0; index < 10'000; ++index)
    menu_.AddMenu(longName + QString::number(index), QString::number(index + 1));
  QElapsedTimer opening;
  Hands hands;
  hands.at("frmMenu", [&](QWidget& shown) {
    shown.grab();
    EXPECT_LT(opening.elapsed(), 1000);
    EXPECT_TRUE(shown.screen()->availableGeometry().contains(shown.frameGeometry()));
    QTest::keyClick(&shown, Qt::Key_Up);
    QTest::keyClick(&shown, Qt::Key_Return);
  });
  opening.start();
  EXPECT_EQ(menu_.ShowMenu(0), "10000");
}

TEST_F(frmMenuTest, GrowsWithItsWidestCaption) {
  fill(1);
  int narrow = 0;
  int wide = 0;
  Hands hands;
  hands.at("frmMenu", [&](QWidget& shown) {
    narrow = shown.width();
    QTest::keyClick(&shown, Qt::Key_Escape);
  });
  menu_.ShowMenu(0);
  menu_.AddMenu(QString("很宽的商品名称").repeated(5), "wide");
  hands.at("frmMenu", [&](QWidget& shown) {
    wide = shown.width();
    QTest::keyClick(&shown, Qt::Key_Escape);
  });
  menu_.ShowMenu(0);
  EXPECT_GT(wide, narrow);
}

TEST_F(frmMenuTest, ClosingTheWindowChoosesNothingAndIsReported) {
  fill(2);
  bool closed = false;
  menu_.closed = [&] { closed = true; };
  Hands hands;
  hands.at("frmMenu", [](QWidget& shown) { shown.close(); });
  EXPECT_EQ(menu_.ShowMenu(1), "");
  EXPECT_TRUE(closed);
  EXPECT_TRUE(clicked_.empty());
}

}  // namespace
