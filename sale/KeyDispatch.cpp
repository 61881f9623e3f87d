#include "sale/KeyDispatch.h"

#include <algorithm>

#include "app/KeyBoard.h"

const KeyCommand* commandFor(const std::vector<KeyCommand>& commands, const KeyBoard& keys,
                             int code) {
  if (code == 0) return nullptr;
  const auto found = std::find_if(commands.begin(), commands.end(), [&](const KeyCommand& command) {
    return keys.*command.key == code;
  });
  return found == commands.end() ? nullptr : &*found;
}
