#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// Text at the edges of the program: GBK bytes in Config.ini and on paper, UTF-8 everywhere else.
/// Widths are counted in bytes of GBK: a Chinese character is 2 wide, a Latin letter 1.
/// A character that GBK lacks (an emoji, the euro sign) prints as "?" and a blank, so that it is 2
/// wide as counted.
namespace gbk {

/// UTF-8 to GBK bytes. Broken UTF-8 counts as characters that GBK lacks.
std::string encode(std::string_view utf8);
/// GBK bytes to UTF-8; bytes that are no GBK become U+FFFD. ASCII is itself, and 0x80
/// the euro sign as Windows writes it.
/// Both throw Failure when the system has no GBK tables.
std::string decode(std::string_view bytes);

/// Width of a text in columns.
std::size_t width(std::string_view utf8);
/// The longest beginning of the text that is at most `columns` wide; a character is never cut.
std::string cut(std::string_view utf8, std::size_t columns);

/// pad x fill + text + pad x fill, with pad = (columns - width) / 2 rounded down; the text alone
/// when it is wider.
std::string centred(std::string_view utf8, std::size_t columns, char fill = ' ');

}  // namespace gbk
