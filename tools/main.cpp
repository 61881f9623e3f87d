#include <unistd.h>

#include <exception>
#include <filesystem>
#include <iostream>
#include <memory>

#include "setup/TerminalTill.h"
#include "tools/Tool.h"

namespace {

std::filesystem::path programFolder() {
  std::error_code unknown;
  return std::filesystem::read_symlink("/proc/self/exe", unknown).parent_path();
}

}  // namespace

int main(int count, char** arguments) {
  try {
    std::ios::sync_with_stdio(false);
    speak(chosenLanguage(IniFile(shopFolder("", programFolder()) / "Config.ini")));
    Console console{std::cin, std::cout, std::cerr, localTime, isatty(STDIN_FILENO) == 1};
    return runTool(count, arguments, console, [&console](const std::filesystem::path& shopFolder) {
      return std::make_unique<TerminalTill>(shopFolder, console.clock);
    });
  } catch (const std::exception& failure) {
    std::cerr << Words::tr("程序出错，必须结束：%1", failure.what()) << '\n';
    return 1;
  }
}
