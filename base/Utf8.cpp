#include "base/Utf8.h"

#include "base/Failure.h"

namespace {

constexpr Utf8Character kBroken{0xFFFD, 1, true};

/// Length that the first byte announces; 0 when no character begins with it.
std::size_t announcedLength(unsigned char first) {
  if (first < 0x80) return 1;
  if (first >= 0xC2 && first <= 0xDF) return 2;
  if (first >= 0xE0 && first <= 0xEF) return 3;
  if (first >= 0xF0 && first <= 0xF4) return 4;
  return 0;
}

bool isCharacter(char32_t code, std::size_t length) {
  constexpr char32_t kSmallest[] = {0, 0, 0x80, 0x800, 0x10000};
  return code >= kSmallest[length] && code <= 0x10FFFF && !(code >= 0xD800 && code <= 0xDFFF);
}

}  // namespace

Utf8Character firstUtf8(std::string_view text) {
  ensure(!text.empty(), "a character of a text that is not empty");
  const auto first = static_cast<unsigned char>(text[0]);
  const std::size_t length = announcedLength(first);
  if (length == 1) return {first, 1, false};
  if (length == 0 || length > text.size()) return kBroken;
  char32_t code = first & (0x7Fu >> length);
  for (std::size_t i = 1; i < length; ++i) {
    const auto byte = static_cast<unsigned char>(text[i]);
    if ((byte & 0xC0) != 0x80) return kBroken;
    code = (code << 6) | (byte & 0x3Fu);
  }
  return isCharacter(code, length) ? Utf8Character{code, length, false} : kBroken;
}
