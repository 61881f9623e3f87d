#include "platform/VirtualKey.h"

#include <QKeyEvent>
#include <algorithm>
#include <array>
#include <string_view>

namespace {

struct KeyCode {
  int qtKey;
  int code;
};

constexpr std::array kNamedKeys = {KeyCode{Qt::Key_Backspace, 8},
                                   KeyCode{Qt::Key_Tab, vk::kTab},
                                   KeyCode{Qt::Key_Backtab, vk::kTab},
                                   KeyCode{Qt::Key_Clear, 12},
                                   KeyCode{Qt::Key_Return, vk::kEnter},
                                   KeyCode{Qt::Key_Enter, vk::kEnter},
                                   KeyCode{Qt::Key_Shift, 16},
                                   KeyCode{Qt::Key_Control, 17},
                                   KeyCode{Qt::Key_Alt, 18},
                                   KeyCode{Qt::Key_AltGr, 18},
                                   KeyCode{Qt::Key_Pause, 19},
                                   KeyCode{Qt::Key_CapsLock, 20},
                                   KeyCode{Qt::Key_Escape, vk::kEscape},
                                   KeyCode{Qt::Key_Space, 32},
                                   KeyCode{Qt::Key_PageUp, 33},
                                   KeyCode{Qt::Key_PageDown, 34},
                                   KeyCode{Qt::Key_End, 35},
                                   KeyCode{Qt::Key_Home, 36},
                                   KeyCode{Qt::Key_Left, 37},
                                   KeyCode{Qt::Key_Up, 38},
                                   KeyCode{Qt::Key_Right, 39},
                                   KeyCode{Qt::Key_Down, 40},
                                   KeyCode{Qt::Key_Print, 44},
                                   KeyCode{Qt::Key_SysReq, 44},
                                   KeyCode{Qt::Key_Insert, 45},
                                   KeyCode{Qt::Key_Delete, 46},
                                   KeyCode{Qt::Key_Help, 47},
                                   KeyCode{Qt::Key_Meta, 91},
                                   KeyCode{Qt::Key_Super_L, 91},
                                   KeyCode{Qt::Key_Super_R, 92},
                                   KeyCode{Qt::Key_Menu, vk::kMenu},
                                   KeyCode{Qt::Key_NumLock, 144},
                                   KeyCode{Qt::Key_ScrollLock, 145}};

/// On the numeric pad; digits apart.
constexpr std::array kPadKeys = {KeyCode{Qt::Key_Asterisk, 106}, KeyCode{Qt::Key_Plus, 107},
                                 KeyCode{Qt::Key_Comma, 110},    KeyCode{Qt::Key_Minus, 109},
                                 KeyCode{Qt::Key_Period, 110},   KeyCode{Qt::Key_Slash, 111}};

/// The keys of a US keyboard that bear two characters, plain and with Shift.
struct TwoCharacterKey {
  char plain;
  char shifted;
  int code;
};
constexpr std::array kTwoCharacterKeys = {
    TwoCharacterKey{'0', ')', '0'},  TwoCharacterKey{'1', '!', '1'},
    TwoCharacterKey{'2', '@', '2'},  TwoCharacterKey{'3', '#', '3'},
    TwoCharacterKey{'4', '$', '4'},  TwoCharacterKey{'5', '%', '5'},
    TwoCharacterKey{'6', '^', '6'},  TwoCharacterKey{'7', '&', '7'},
    TwoCharacterKey{'8', '*', '8'},  TwoCharacterKey{'9', '(', '9'},
    TwoCharacterKey{';', ':', 186},  TwoCharacterKey{'=', '+', 187},
    TwoCharacterKey{',', '<', 188},  TwoCharacterKey{'-', '_', 189},
    TwoCharacterKey{'.', '>', 190},  TwoCharacterKey{'/', '?', 191},
    TwoCharacterKey{'`', '~', 192},  TwoCharacterKey{'[', '{', 219},
    TwoCharacterKey{'\\', '|', 220}, TwoCharacterKey{']', '}', 221},
    TwoCharacterKey{'\'', '"', 222}};

template <typename Table>
int codeIn(const Table& table, int qtKey) {
  const auto found = std::ranges::find(table, qtKey, &KeyCode::qtKey);
  return found == table.end() ? 0 : found->code;
}

int padCode(int qtKey) {
  if (qtKey >= Qt::Key_0 && qtKey <= Qt::Key_9) return 96 + qtKey - Qt::Key_0;
  return codeIn(kPadKeys, qtKey);
}

/// Qt's key of a printable ASCII character is the character.
int characterCode(int qtKey) {
  if (qtKey >= Qt::Key_A && qtKey <= Qt::Key_Z) return qtKey;
  const auto bears = [qtKey](const TwoCharacterKey& key) {
    return key.plain == qtKey || key.shifted == qtKey;
  };
  const auto found = std::ranges::find_if(kTwoCharacterKeys, bears);
  return found == kTwoCharacterKeys.end() ? 0 : found->code;
}

}  // namespace

int virtualKey(const QKeyEvent& event) {
  return virtualKey(event.key(), event.modifiers().testFlag(Qt::KeypadModifier));
}

int virtualKey(int qtKey, bool onKeypad) {
  if (qtKey >= Qt::Key_F1 && qtKey <= Qt::Key_F24) return 112 + qtKey - Qt::Key_F1;
  if (const int code = onKeypad ? padCode(qtKey) : 0) return code;
  if (const int code = codeIn(kNamedKeys, qtKey)) return code;
  return characterCode(qtKey);
}
