#pragma once

struct Console;
namespace CLI {
class App;
}

/// operator card FILE --number N [--remove]: gives an operator a staff card, whose track the card
/// reader types at the terminal or which is the next line of the input, or takes it away.
void addStaffCardCommand(CLI::App& parent, Console& console);
