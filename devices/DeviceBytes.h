#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/Currency.h"

/// The bytes that line printer, customer display and cash drawer understand. Both models of display
/// take the same commands.
namespace device {

/// Texts as a line printer takes them: in GBK, each ended by CR LF. A control character in a text
/// is printed as a blank: it would be a command to the printer or to the drawer behind it.
std::string printedLines(std::vector<std::string> lines);

/// ESC/POS "generate pulse": ESC p, pin 0, on time 60, off time 255 (2 ms each), then a line end.
inline constexpr std::string_view kDrawerPulse{"\x1B\x70\x00\x3C\xFF\r\n", 7};
/// Opens a drawer that hangs on the display: STX M.
inline constexpr std::string_view kDrawerThroughDisplay{"\x02M"};

/// Shows a figure: ESC s n says what it means (n = 0 ... 4, left out for any other mode), ESC Q A
/// figure CR shows it with two decimals.
std::string displayFigure(Currency money, int mode);

/// The port of a display's setting: "COM1" and "COM2" as they are, a number n as "COMn". Throws
/// PortError for any other text.
std::string displayPort(const std::string& setting);

}  // namespace device
