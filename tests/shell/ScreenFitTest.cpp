#include "shell/ScreenFit.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QScreen>
#include <QTest>
#include <QVBoxLayout>

namespace {

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

}  // namespace
