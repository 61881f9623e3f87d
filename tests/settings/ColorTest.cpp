#include <gtest/gtest.h>

#include <QColorDialog>
#include <QLabel>
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
  QColor swatch(int index) {
    const QPixmap shown =
        form_.findChild<QLabel*>("lblColor" + QString::number(index))->pixmap(Qt::ReturnByValue);
    return shown.toImage().pixelColor(shown.rect().center());
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

TEST_F(frmColorTest, EachColourIsShownBesideItsNumberAsItIsTyped) {
  EXPECT_EQ(box(0).text(), "16711680");
  const std::pair<const char*, QColor> cases[] = {{"16711680", QColor(0, 0, 255)},
                                                  {"255", QColor(255, 0, 0)},
                                                  {"", QColor(0, 64, 128)},
                                                  {"8404992", QColor(0, 64, 128)}};
  for (const auto& [typed, shown] : cases) {
    type(0, typed);
    EXPECT_EQ(swatch(0), shown) << typed;
  }
}

TEST_F(frmColorTest, EmptyBoxesGiveTheDefaultsAndAreSaved) {
  for (int i = 0; i < 6; ++i) type(i, "");
  click("cmdOk");
  EXPECT_FALSE(form_.isVisible());
  EXPECT_EQ(settings(), (Colours{8404992, 0, 255, 65280, 65535, 0}));
  ClsPosSet saved;
  saved.LoadSet(till_.pos.configIni);
  for (std::size_t i = 0; i < 6; ++i) EXPECT_EQ(saved.*kFields[i], settings()[i]);
}

TEST_F(frmColorTest, ABoxWithoutANumberEndsTheSaving) {
  const std::string before = till_.fileText();
  type(0, "7");
  type(1, "red");
  type(2, "9");
  QString said;
  hands_.at("messageBox", [&](QWidget& shown) {
    said = shown.findChild<QLabel*>("qt_msgbox_label")->text();
    Hands::pressNow(Qt::Key_Return);
  });
  click("cmdOk");
  EXPECT_EQ(said, "“red”不是颜色的数字！");
  EXPECT_TRUE(form_.isVisible());
  EXPECT_EQ(form_.focusWidget(), &box(1));
  EXPECT_EQ(settings(), (Colours{7, 255, 65280, 1, 16777215, 2}));
  EXPECT_EQ(till_.fileText(), before);
}

TEST_F(frmColorTest, TheColourDialogStartsWithTheBoxAndGivesItsColour) {
  struct Case {
    const char* typed;
    QColor start;
    std::optional<QColor> chosen;  // nothing: cancelled
    const char* after;
  };
  const Case cases[] = {
      {"", Qt::black, std::nullopt, "0"},
      {"255", QColor(255, 0, 0), QColor(1, 2, 3), "197121"},
      {"none", QColor(1, 2, 3), std::nullopt, "197121"},
      {"65280", QColor(0, 255, 0), std::nullopt, "65280"},
  };
  for (const Case& each : cases) {
    type(3, each.typed);
    hands_.at("cdColor", [&](QWidget& shown) {
      auto& dialog = static_cast<QColorDialog&>(shown);
      EXPECT_EQ(dialog.currentColor(), each.start);
      dialog.setCurrentColor(each.chosen.value_or(QColor(9, 9, 9)));
      QTest::keyClick(&dialog, each.chosen ? Qt::Key_Return : Qt::Key_Escape);
    });
    click("cmdViewColor3");
    EXPECT_EQ(box(3).text(), each.after);
  }
  const std::string before = till_.fileText();
  press(Qt::Key_Escape);
  EXPECT_FALSE(form_.isVisible());
  EXPECT_EQ(settings()[3], 1);
  EXPECT_EQ(till_.fileText(), before);
}

}  // namespace
