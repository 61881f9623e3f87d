#include <QColorDialog>

#include "Hands.h"
#include "SettingsTill.h"
#include "settings/frmColor.h"

using Colours = std::vector<int>;

class frmColorTest : public testing::Test {
 protected:
  frmColorTest() {
    form_.open();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&form_));
  }
  /// Types over a box, or presses a button.
  void type(const QString& control, const QString& text) {
    form_.findChild<QWidget*>(control)->setFocus();
    if (control.startsWith("txt")) QTest::keySequence(form_.focusWidget(), QKeySequence::SelectAll);
    Hands::typeNow(text);
  }
  Colours settings() const {
    const ClsPosSet& set = till_.pos.gPosSet;
    return {set.C1, set.C2, set.C3, set.C4, set.C5, set.C6};
  }

  SettingsTill till_{
      "[Color]\r\nC1=16711680\r\nC2=255\r\nC3=65280\r\nC4=1\r\nC5=16777215\r\nC6=2\r\n"};
  frmColor form_{till_.pos};
  Hands hands_;
};

TEST_F(frmColorTest, EmptyBoxesGiveTheDefaultsAndAreSaved) {
  const Colours defaults = {8404992, 0, 255, 65280, 65535, 0};
  for (int i = 0; i < 6; ++i) type(QString("txtColor%1").arg(i), "\b");
  type("cmdOk", "\n");
  EXPECT_FALSE(form_.isVisible());
  EXPECT_EQ(settings(), defaults);
  till_.pos.gPosSet.LoadSet(till_.pos.configIni);
  EXPECT_EQ(settings(), defaults) << "from the file";
}

TEST_F(frmColorTest, ABoxWithoutANumberEndsTheSaving) {
  const std::string before = till_.fileText();
  type("txtColor0", "7");
  type("txtColor1", "red");
  type("txtColor2", "9");
  hands_.says("messageBox", "“red”不是颜色的数字！");
  type("cmdOk", "\n");
  EXPECT_EQ(Hands::textsOf(form_, "txtColor1"), "red@txtColor1");
  EXPECT_EQ(settings(), (Colours{7, 255, 65280, 1, 16777215, 2}));
  Hands::typeNow("⎋");
  EXPECT_FALSE(form_.isVisible());
  EXPECT_EQ(till_.fileText(), before);
}

TEST_F(frmColorTest, TheColourDialogGivesItsColour) {
  hands_.at("cdColor", [](QWidget& shown) {
    static_cast<QColorDialog&>(shown).setCurrentColor(QColor(1, 2, 3));
    QTest::keyClick(&shown, Qt::Key_Return);
  });
  type("cmdViewColor3", "\n");
  EXPECT_EQ(form_.findChild<QLineEdit*>("txtColor3")->text(), "197121");
}
