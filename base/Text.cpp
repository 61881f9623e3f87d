#include "base/Text.h"

#include <algorithm>

#include "base/Failure.h"
#include "base/Utf8.h"

namespace {

constexpr std::string_view kWideBlank = "\u3000";

bool isBlank(char c) {
  return c == ' ' || (c >= '\t' && c <= '\r');
}

char lowered(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool isAscii(std::string_view text) {
  return std::all_of(text.begin(), text.end(),
                     [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

/// The ASCII namesake; 0 when there is none.
char asciiNamesake(char32_t code) {
  if (code == 0x3000) return ' ';
  return code >= 0xFF01 && code <= 0xFF5E ? static_cast<char>(code - 0xFF01 + '!') : '\0';
}

}  // namespace

std::string trimmed(std::string_view text) {
  for (;;) {
    if (text.starts_with(kWideBlank)) {
      text.remove_prefix(kWideBlank.size());
    } else if (!text.empty() && isBlank(text.front())) {
      text.remove_prefix(1);
    } else {
      break;
    }
  }
  for (;;) {
    if (text.ends_with(kWideBlank)) {
      text.remove_suffix(kWideBlank.size());
    } else if (!text.empty() && isBlank(text.back())) {
      text.remove_suffix(1);
    } else {
      return std::string(text);
    }
  }
}

std::string halfWidth(std::string_view text) {
  if (isAscii(text)) return std::string(text);
  std::string folded;
  folded.reserve(text.size());
  while (!text.empty()) {
    const Utf8Character next = firstUtf8(text);
    if (const char ascii = asciiNamesake(next.code)) {
      folded += ascii;
    } else {
      folded += text.substr(0, next.length);
    }
    text.remove_prefix(next.length);
  }
  return folded;
}

std::size_t characters(std::string_view text) {
  std::size_t count = 0;
  for (; !text.empty(); ++count) text.remove_prefix(firstUtf8(text).length);
  return count;
}

std::string firstCharacters(std::string_view text, std::size_t count) {
  std::string_view rest = text;
  for (; count > 0 && !rest.empty(); --count) rest.remove_prefix(firstUtf8(rest).length);
  return std::string(text.substr(0, text.size() - rest.size()));
}

std::string asciiLower(std::string_view text) {
  std::string result(text);
  std::transform(result.begin(), result.end(), result.begin(), lowered);
  return result;
}

bool equalIgnoringCase(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](char x, char y) { return lowered(x) == lowered(y); });
}

bool hasControlCharacter(std::string_view text) {
  for (std::size_t at = 0; at < text.size(); ++at) {
    const auto byte = static_cast<unsigned char>(text[at]);
    if (byte < 0x20 || byte == 0x7f) return true;
    const bool isC1 =
        byte == 0xC2 && at + 1 < text.size() && static_cast<unsigned char>(text[at + 1]) < 0xA0;
    if (isC1) return true;
  }
  return false;
}

std::string replaced(std::string text, std::string_view what, std::string_view with) {
  ensure(!what.empty(), "something to replace");
  for (std::size_t at = text.find(what); at != std::string::npos;
       at = text.find(what, at + with.size())) {
    text.replace(at, what.size(), with);
  }
  return text;
}
