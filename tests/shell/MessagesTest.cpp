#include <QDialog>
#include <QScreen>
#include <QVBoxLayout>

#include "Hands.h"
#include "shell/FocusReturn.h"
#include "shell/Modal.h"
#include "shell/ScreenFit.h"
#include "shell/Style.h"
#include "shell/frmMsg.h"

TEST(ModalTest, QuestionsAnswerToTheKeyboardAlone) {
  using enum Qt::Key;
  const struct {
    bool yesPreselected;
    Qt::Key key;
    bool answer;
  } cases[] = {{true, Key_Return, true},
               {true, Key_Escape, false},
               {false, Key_Return, false},
               {false, Key_Y, true},
               {true, Key_N, false}};
  Hands hands;
  for (const auto& c : cases) {
    hands.press("messageBox", {c.key});
    EXPECT_EQ(askYesNo(nullptr, "打印吗？", "", c.yesPreselected), c.answer) << c.key;
  }
}

TEST(ModalTest, WhateverWasTypedIsShownAsItIsAndFitsTheScreen) {
  applyStyle(*qApp);
  Hands hands;
  for (const QString& text :
       {QString("<b>x</b>"), QString(10'000, 'x'), QString(10'000, QChar(0x5546))}) {
    const auto check = [&](QWidget& shown) {
      const QLabel* label =
          shown.findChild<QLabel*>(shown.objectName() == "frmMsg" ? "Label1" : "qt_msgbox_label");
      EXPECT_EQ(label->text().left(8), text.left(8));
      EXPECT_EQ(label->textFormat(), Qt::PlainText);
      EXPECT_LT(shown.width(), shown.screen()->availableGeometry().width());
      EXPECT_LT(shown.height(), shown.screen()->availableGeometry().height());
      EXPECT_GE(label->height(), label->heightForWidth(label->width())) << "lines are cut off";
      Hands::pressNow(Qt::Key_Return);
    };
    hands.at("messageBox", check).at("frmMsg", check);
    messageBox(nullptr, text);
    frmMsg message;
    message.Message(text);
  }
}

TEST(FocusReturnTest, TheWindowUnderAClosedOneHasTheKeyboardAgain) {
  FocusReturn returns(qApp);
  QDialog below;
  below.setObjectName("below");
  Hands hands;
  hands.at("below", [](QWidget& window) { messageBox(&window, "错"); }).says("messageBox", "错");
  hands.at("below", [](QWidget& window) {
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    window.close();
  });
  below.exec();
}

TEST(frmMsgTest, AnyKeyOrClickClosesItButNotAKeyHeldDown) {
  frmMsg message;
  Hands hands;
  for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_X, Qt::Key_Tab, Qt::Key_F9}) {
    hands.press("frmMsg", {key});
    message.Message("请输入要退货的单据流水号！");
  }
  hands.at("frmMsg", [](QWidget& shown) {
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, {}, "\r", true);
    QApplication::sendEvent(&shown, &held);
    EXPECT_TRUE(shown.isVisible());
    QTest::mouseClick(shown.findChild<QWidget*>("Label2"), Qt::LeftButton);
  });
  message.Message("");
}

TEST(ScreenFitTest, AHighDialogScrollsToTheFocus) {
  ScreenFit fit(qApp);
  QDialog dialog;
  auto* layout = new QVBoxLayout(&dialog);
  layout->setSizeConstraint(QLayout::SetFixedSize);
  for (int i = 0; i < 60; ++i) layout->addWidget(new QLineEdit);
  QWidget* last = layout->itemAt(59)->widget();
  dialog.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
  EXPECT_LT(dialog.height(), dialog.screen()->availableSize().height());
  EXPECT_TRUE(last->visibleRegion().isEmpty());
  QTest::keyClick(dialog.focusWidget(), Qt::Key_Backtab);
  EXPECT_TRUE(last->hasFocus());
  EXPECT_EQ(last->visibleRegion(), QRegion(last->rect()));
}
