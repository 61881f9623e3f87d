#pragma once

#include <QString>

/// What is printed on the key with this virtual-key code: "F1", "空格", "小键盘 5". Empty for a
/// code that no key of a usual keyboard has.
QString keyName(int code);
/// The name for texts; the code when the key has no name.
QString shortKeyText(int code);
/// Name and code, for texts: "F1 (112)"; the code alone when the key has no name.
QString keyText(int code);
