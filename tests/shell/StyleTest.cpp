#include "shell/Style.h"

#include <gtest/gtest.h>

#include <QColor>

namespace {

TEST(StyleTest, SettingsColoursAreBlueGreenRedAndTextOnThemIsLegible) {
  struct Case {
    int setting;
    QColor colour;
    Qt::GlobalColor text;
  };
  const Case cases[] = {{0, {0, 0, 0}, Qt::white},          {16777215, {255, 255, 255}, Qt::black},
                        {8404992, {0, 64, 128}, Qt::white}, {255, {255, 0, 0}, Qt::black},
                        {0xC00000, {0, 0, 192}, Qt::white}, {65535, {255, 255, 0}, Qt::black}};
  for (const Case& c : cases) {
    EXPECT_EQ(settingColour(c.setting), c.colour) << c.setting;
    EXPECT_EQ(legibleOn(c.colour), QColor(c.text)) << c.setting;
  }
}

}  // namespace
