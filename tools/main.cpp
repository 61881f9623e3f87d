#include <unistd.h>

#include <exception>
#include <iostream>
#include <memory>

#include "setup/TerminalTill.h"
#include "tools/Tool.h"

int main(int count, char** arguments) {
  try {
    std::ios::sync_with_stdio(false);
    Console console{std::cin, std::cout, std::cerr, localTime, isatty(STDIN_FILENO) == 1};
    return runTool(count, arguments, console, [&console](const std::filesystem::path& shopFolder) {
      return std::make_unique<TerminalTill>(shopFolder, console.clock);
    });
  } catch (const std::exception& failure) {
    std::cerr << "程序出错，必须结束：" << failure.what() << '\n';
    return 1;
  }
}
