#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// UTF-8 texts as people type them.

/// Blanks (the full-width one U+3000 too), tabs and line ends removed at both ends.
std::string trimmed(std::string_view text);
/// Full-width digits, letters and punctuation (U+FF01 ... U+FF5E) as their ASCII namesakes, U+3000
/// as a blank: what an input method left on makes of a number.
std::string halfWidth(std::string_view text);
/// Number of characters; a broken byte counts as one.
std::size_t characters(std::string_view text);
/// The first `count` characters.
std::string firstCharacters(std::string_view text, std::size_t count);
/// ASCII letters lowered, all else as it is.
std::string asciiLower(std::string_view text);
bool equalIgnoringCase(std::string_view a, std::string_view b);
/// Whether it holds a control character (line end, escape, delete, the C1 set): one would command a
/// printer, or forge a line of paper or of a file.
bool hasControlCharacter(std::string_view text);
/// Every occurrence of `what` replaced; `what` is not empty.
std::string replaced(std::string text, std::string_view what, std::string_view with);
