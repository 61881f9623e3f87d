#include "platform/KeyName.h"

#include <QCoreApplication>
#include <algorithm>
#include <array>

namespace {

struct NamedKey {
  int code;
  const char* name;
};

/// What keyboards of every country have on them.
constexpr std::array kNamedKeys = {
    NamedKey{8, "Backspace"},    NamedKey{9, "Tab"},          NamedKey{12, "Clear"},
    NamedKey{13, "Enter"},       NamedKey{16, "Shift"},       NamedKey{17, "Ctrl"},
    NamedKey{18, "Alt"},         NamedKey{19, "Pause"},       NamedKey{20, "CapsLock"},
    NamedKey{27, "Esc"},         NamedKey{33, "PageUp"},      NamedKey{34, "PageDown"},
    NamedKey{35, "End"},         NamedKey{36, "Home"},        NamedKey{37, "←"},
    NamedKey{38, "↑"},           NamedKey{39, "→"},           NamedKey{40, "↓"},
    NamedKey{44, "PrintScreen"}, NamedKey{45, "Insert"},      NamedKey{46, "Delete"},
    NamedKey{47, "Help"},        NamedKey{91, "Win"},         NamedKey{92, "Win"},
    NamedKey{144, "NumLock"},    NamedKey{145, "ScrollLock"}, NamedKey{186, ";"},
    NamedKey{187, "="},          NamedKey{188, ","},          NamedKey{189, "-"},
    NamedKey{190, "."},          NamedKey{191, "/"},          NamedKey{192, "`"},
    NamedKey{219, "["},          NamedKey{220, "\\"},         NamedKey{221, "]"},
    NamedKey{222, "'"}};
constexpr std::array kKeypadKeys = {NamedKey{106, "*"}, NamedKey{107, "+"}, NamedKey{109, "-"},
                                    NamedKey{110, "."}, NamedKey{111, "/"}};

/// Nothing for a code that is not in the list.
template <std::size_t count>
const char* named(const std::array<NamedKey, count>& keys, int code) {
  const auto found = std::ranges::find(keys, code, &NamedKey::code);
  return found == keys.end() ? nullptr : found->name;
}

bool isFigureOrLetter(int code) {
  return (code >= '0' && code <= '9') || (code >= 'A' && code <= 'Z');
}

}  // namespace

QString keyName(int code) {
  if (isFigureOrLetter(code)) return QChar(code);
  if (code >= 112 && code <= 135) return "F" + QString::number(code - 111);
  if (code == 32) return QCoreApplication::translate("KeyName", "空格");
  if (code == 93) return QCoreApplication::translate("KeyName", "菜单键");
  const QString onKeypad = QCoreApplication::translate("KeyName", "小键盘 %1");
  if (code >= 96 && code <= 105) return onKeypad.arg(code - 96);
  if (const char* sign = named(kKeypadKeys, code)) return onKeypad.arg(sign);
  return named(kNamedKeys, code);
}

QString shortKeyText(int code) {
  const QString name = keyName(code);
  return name.isEmpty() ? QString::number(code) : name;
}

QString keyText(int code) {
  const QString name = keyName(code);
  const QString number = QString::number(code);
  return name.isEmpty() ? number : name + " (" + number + ")";
}
