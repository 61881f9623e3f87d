#pragma once

class QKeyEvent;

/// Windows virtual-key codes of the keys that the program names itself.
namespace vk {
inline constexpr int kTab = 9;
inline constexpr int kEnter = 13;
inline constexpr int kEscape = 27;
inline constexpr int kMenu = 93;
inline constexpr int kF10 = 121;
}  // namespace vk

/// The Windows virtual-key code of a key event, from its Qt::Key alone, so that a synthetic event
/// equals a pressed one. Both Enter keys are 13; digits of the numeric pad are 96 ... 105.
/// 0 for a key that has none.
int virtualKey(const QKeyEvent& event);
/// The same for a bare key: `qtKey` is a Qt::Key.
int virtualKey(int qtKey, bool onKeypad = false);
