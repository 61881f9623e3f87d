#include <gtest/gtest.h>

#include <QColorDialog>
#include <QLineEdit>

#include "Hands.h"
#include "SettingsTill.h"
#include "settings/frmColor.h"

namespace {

constexpr std::array kFields = {&ClsPosSet::C1, &ClsPosSet::C2, &ClsPosSet::C3,
                                &ClsPosSet::C4, &ClsPosSet::C5, &ClsPosSet::C6};
using Colours = std::array<int, 6>;

class frmColorTest : public testing::Test {
 protected:
  frmColorTest() {
    form_.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&form_));
  }
  QLineEdit& box(int index) {
    return *form_.findChild<QLineEdit*>("txtColor" + QString::number(index));
  }
  /// Types over a box, from the keyboard.
  void type(int index, const QString& text) {
    box(index).setFocus();
    QTest::keySequence(&box(index), QKeySequence::SelectAll);
    QTest::keyClick(&box(index), Qt::Key_Delete);
    QTest::keyClicks(&box(index), text);
  }
  void press(Qt::Key key) { QTest::keyClick(form_.focusWidget(), key); }
  void click(const QString& button) {
    form_.findChild<QWidget*>(button)->setFocus();
    press(Qt::Key_Return);
  }
  Colours settings() const {
    Colours all{};
    for (std::size_t i = 0; i < all.size(); ++i) all[i] = till_.pos.gPosSet.*kFields[i];
    return all;
  }

  SettingsTill till_{
      "[Color]\r\nC1=16711680\r\nC2=255\r\nC3=65280\r\nC4=1\r\nC5=16777215\r\nC6=2\r\n"};
  frmColor form_{till_.pos};
  Hands hands_;
};

TEST_F(frmColorTest, EmptyBoxesGiveTheDefaultsAndAreSaved) {
  for (int i = 0; i < 6; ++i) type(i, "");
  click("cmdOk");
  EXPECT_FALSE(form_.isVisible());
  EXPECT_EQ(settings(), (Colours{8404992, 0, 255, 65280, 65535, 0}));
  till_.pos.gPosSet.LoadSet(till_.pos.configIni);
  EXPECT_EQ(settings(), (Colours{8404992, 0, 255, 65280, 65535, 0})) << "from the file";
}

TEST_F(frmColorTest, ABoxWithoutANumberEndsTheSaving) {
  const std::string before = till_.fileText();
  type(0, "7");
  type(1, "red");
  type(2, "9");
  std::vector<std::string> said;
  hands_.confirm(said);
  click("cmdOk");
  EXPECT_EQ(said.at(0), "“red”不是颜色的数字！");
  EXPECT_EQ(form_.focusWidget(), &box(1));
  EXPECT_EQ(settings(), (Colours{7, 255, 65280, 1, 16777215, 2}));
  press(Qt::Key_Escape);
  EXPECT_FALSE(form_.isVisible());
  EXPECT_EQ(till_.fileText(), before);
}

TEST_F(frmColorTest, TheColourDialogGivesItsColour) {
  hands_.at("cdColor", [](QWidget& shown) {
    static_cast<QColorDialog&>(shown).setCurrentColor(QColor(1, 2, 3));
    QTest::keyClick(&shown, Qt::Key_Return);
  });
  click("cmdViewColor3");
  EXPECT_EQ(box(3).text(), "197121");
}

}  // namespace
