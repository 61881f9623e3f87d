// The main of every test program that shows windows: off-screen, with the same event loop as the
// till.
#include <gtest/gtest.h>

#include <QApplication>
#include <algorithm>
#include <string_view>

#include "LongRun.h"

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  longRun = std::any_of(argv, argv + argc, [](std::string_view each) { return each == "--long"; });
  QApplication application(argc, argv);
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
