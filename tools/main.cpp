#include <unistd.h>

#include <exception>
#include <filesystem>
#include <iostream>
#include <memory>

#include "app/Language.h"
#include "base/ShopFolder.h"
#include "base/Words.h"
#include "platform/IniFile.h"
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
    const Language language =
        chosenLanguage(IniFile(shopFolder("", programFolder()) / "Config.ini"));
    speak(language);
    Console console{std::cin, std::cout, std::cerr, localTime, isatty(STDIN_FILENO) == 1};
    return runTool(count, arguments, console, [&](const std::filesystem::path& folder) {
      auto till = std::make_unique<TerminalTill>(folder, console.clock);
      speak(language);  // its texts, now that they have an application
      return till;
    });
  } catch (const std::exception& failure) {
    std::cerr << Words::tr("程序出错，必须结束：%1", failure.what()) << '\n';
    return 1;
  }
}
