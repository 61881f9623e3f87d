#include <unistd.h>

#include <iostream>

#include "tools/Tool.h"

int main(int count, char** arguments) {
  std::ios::sync_with_stdio(false);
  Console console{std::cin, std::cout, std::cerr, localTime, isatty(STDIN_FILENO) == 1};
  return runTool(count, arguments, console);
}
