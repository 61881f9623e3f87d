#pragma once

#include <functional>
#include <vector>

class KeyBoard;

/// One command of the sale screen: the mapped key it answers to and what it does.
struct KeyCommand {
  int KeyBoard::*key;
  std::function<bool()> run;  ///< true: the next key press first empties the input line
};

/// The command for a virtual-key code: the first whose mapped key it is; none for an unmapped key
/// or code 0. The order of `commands` decides ties.
const KeyCommand* commandFor(const std::vector<KeyCommand>& commands, const KeyBoard& keys,
                             int code);
