#include "tools/AutostartCommand.h"

#include <CLI/CLI.hpp>
#include <cstdlib>
#include <memory>
#include <system_error>

#include "base/Text.h"
#include "base/WholeFile.h"
#include "base/Words.h"
#include "shop/Refusal.h"
#include "tools/ParserTexts.h"

namespace fs = std::filesystem;

namespace {

/// Where the entries lie by the Desktop Application Autostart Specification 0.5.
fs::path autostartFolder() {
  const char* configured = std::getenv("XDG_CONFIG_HOME");
  if (configured != nullptr && fs::path(configured).is_absolute())
    return fs::path(configured) / "autostart";
  const char* home = std::getenv("HOME");
  if (home == nullptr) throw Refusal(Words::tr("不知道这位用户的文件夹在哪里（HOME 没有设置）。"));
  return fs::path(home) / ".config/autostart";
}

void setAutostart(bool isOn, Console& console) {
  const fs::path entry = autostartFolder() / "till.desktop";
  std::error_code fault;
  if (!isOn) {
    fs::remove(entry, fault);
    if (fault) throw Refusal(Words::tr("不能删除 %1：%2", entry.string(), fault.message()));
    console.out << Words::tr("登录后不再自动打开收银程序。") << '\n';
    return;
  }
  fs::create_directories(entry.parent_path(),
                         fault);  // what fails here fails below with its reason
  WholeFile file(entry);
  file.append(autostartEntry(fs::read_symlink("/proc/self/exe").parent_path() / "till"));
  file.finish();
  console.out << Words::tr("这位用户登录后会自动打开收银程序：%1", entry.string()) << '\n';
}

}  // namespace

void addAutostartCommand(CLI::App& app, Console& console) {
  CLI::App* command = app.add_subcommand(
      "autostart",
      Words::tr("执行这个命令的用户登录桌面后，是否自动打开收银程序。请用收银员的账户执行"));
  const auto state = std::make_shared<std::string>();
  command->add_option(Words::tr("开关"), *state, Words::tr("on 自动打开；off 不自动打开"))
      ->required()
      ->check(oneOf({"on", "off"}));
  command->callback([state, &console] { setAutostart(*state == "on", console); });
}

// A quoted argument of Exec escapes its special characters with a backslash and doubles the percent
// sign; both keys are strings, in which every backslash is doubled once more.
std::string autostartEntry(const fs::path& program) {
  const std::string asString = replaced(program.string(), "\\", "\\\\");
  std::string quoted = program.string();
  for (const char* special : {"\\", "\"", "`", "$"})
    quoted = replaced(quoted, special, std::string("\\").append(special));
  quoted = replaced(replaced(quoted, "\\", "\\\\"), "%", "%%");
  std::string entry =
      // untranslated: the entry has both languages
      "[Desktop Entry]\nType=Application\nName=Till\nName[zh_CN]=前台收银\nIcon=till\n";
  entry.append("TryExec=").append(asString).append("\nExec=\"").append(quoted).append("\"\n");
  return entry;
}
