#include "platform/VirtualKey.h"

#include <gtest/gtest.h>

#include <QKeyEvent>

// Key, its code, its code on the numeric pad.
// clang-format off
constexpr int kCases[][3] = {
    {Qt::Key_A, 65, 65}, {Qt::Key_Z, 90, 90}, {Qt::Key_0, 48, 96}, {Qt::Key_9, 57, 105},
    {Qt::Key_F1, 112, 112}, {Qt::Key_F24, 135, 135}, {Qt::Key_Return, 13, 13},
    {Qt::Key_Enter, 13, 13}, {Qt::Key_Escape, 27, 27}, {Qt::Key_Left, 37, 37},
    {Qt::Key_Up, 38, 38}, {Qt::Key_Right, 39, 39}, {Qt::Key_Down, 40, 40}, {Qt::Key_Menu, 93, 93},
    {Qt::Key_Delete, 46, 46}, {Qt::Key_Backtab, 9, 9}, {Qt::Key_Alt, 18, 18},
    {Qt::Key_Asterisk, 56, 106}, {Qt::Key_Plus, 187, 107}, {Qt::Key_Minus, 189, 109},
    {Qt::Key_Period, 190, 110}, {Qt::Key_Slash, 191, 111}, {Qt::Key_Exclam, 49, 49},
    {Qt::Key_Colon, 186, 186}, {Qt::Key_unknown, 0, 0}, {Qt::Key_Eacute, 0, 0}};
// clang-format on

TEST(VirtualKeyTest, IsTheOneOfWindows) {
  for (const auto& [key, code, padCode] : kCases) {
    EXPECT_EQ(virtualKey(key), code) << key;
    const QKeyEvent onPad(QEvent::KeyPress, key, Qt::KeypadModifier | Qt::ShiftModifier);
    EXPECT_EQ(virtualKey(onPad), padCode) << key;
  }
}
