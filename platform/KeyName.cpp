#include "platform/KeyName.h"

#include <QCoreApplication>
#include <algorithm>
#include <array>

namespace {

struct NamedKey {
  int code;
  const char* name;
};

constexpr std::array kNamedKeys = {
    NamedKey{8, "Backspace"},  NamedKey{9, "Tab"},          NamedKey{12, "Clear"},
    NamedKey{13, "Enter"},     NamedKey{16, "Shift"},       NamedKey{17, "Ctrl"},
    NamedKey{18, "Alt"},       NamedKey{19, "Pause"},       NamedKey{20, "CapsLock"},
    NamedKey{27, "Esc"},       NamedKey{32, "空格"},        NamedKey{33, "PageUp"},
    NamedKey{34, "PageDown"},  NamedKey{35, "End"},         NamedKey{36, "Home"},
    NamedKey{37, "←"},         NamedKey{38, "↑"},           NamedKey{39, "→"},
    NamedKey{40, "↓"},         NamedKey{44, "PrintScreen"}, NamedKey{45, "Insert"},
    NamedKey{46, "Delete"},    NamedKey{47, "Help"},        NamedKey{91, "Win"},
    NamedKey{92, "Win"},       NamedKey{93, "菜单键"},      NamedKey{106, "小键盘 *"},
    NamedKey{107, "小键盘 +"}, NamedKey{109, "小键盘 -"},   NamedKey{110, "小键盘 ."},
    NamedKey{111, "小键盘 /"}, NamedKey{144, "NumLock"},    NamedKey{145, "ScrollLock"},
    NamedKey{186, ";"},        NamedKey{187, "="},          NamedKey{188, ","},
    NamedKey{189, "-"},        NamedKey{190, "."},          NamedKey{191, "/"},
    NamedKey{192, "`"},        NamedKey{219, "["},          NamedKey{220, "\\"},
    NamedKey{221, "]"},        NamedKey{222, "'"}};

bool isFigureOrLetter(int code) {
  return (code >= '0' && code <= '9') || (code >= 'A' && code <= 'Z');
}

}  // namespace

QString keyName(int code) {
  if (isFigureOrLetter(code)) return QChar(code);
  if (code >= 112 && code <= 135) return "F" + QString::number(code - 111);
  if (code >= 96 && code <= 105)
    return QCoreApplication::translate("KeyName", "小键盘 %1").arg(code - 96);
  const auto found = std::ranges::find(kNamedKeys, code, &NamedKey::code);
  if (found == kNamedKeys.end()) return {};
  return QCoreApplication::translate("KeyName", found->name);
}

QString keyText(int code) {
  const QString name = keyName(code);
  const QString number = QString::number(code);
  return name.isEmpty() ? number : name + " (" + number + ")";
}
