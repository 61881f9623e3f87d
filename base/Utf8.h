#pragma once

#include <cstddef>
#include <string_view>

/// One character of a UTF-8 text.
struct Utf8Character {
  char32_t code = 0;       ///< U+FFFD for a broken byte
  std::size_t length = 1;  ///< in bytes; 1 for a broken byte
  bool broken = false;
};

/// The character at the beginning of the text, which is not empty. Overlong forms, surrogates and
/// anything above U+10FFFF are broken, byte by byte.
Utf8Character firstUtf8(std::string_view text);
