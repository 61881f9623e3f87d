#include "docs/ProgramFacts.h"

#include <QString>
#include <algorithm>
#include <sstream>
#include <utility>

#include "app/KeyBoard.h"
#include "base/Failure.h"
#include "platform/QtText.h"
#include "sale/SaleSession.h"
#include "saleslib/ClsSysParam.h"
#include "settings/KeyTable.h"
#include "shell/frmMain.h"
#include "tools/Tool.h"

namespace program_facts {

namespace {

using Entries = std::vector<std::pair<QString, QString>>;

std::string entryText(const std::pair<QString, QString>& entry) {
  return QString(entry.first).remove(' ').toStdString();
}

std::string menuLine(const char* menu, const Entries& entries) {
  std::string line = menu;
  for (const auto& entry : entries)
    line.append(&entry == &entries.front() ? "：" : "、").append(entryText(entry));
  return line.append("\n\n");
}

std::string helpOf(std::vector<std::string> words) {
  words.insert(words.begin(), "tilladmin");
  words.emplace_back("--help");
  std::vector<const char*> arguments;
  arguments.reserve(words.size());
  for (const std::string& word : words) arguments.push_back(word.c_str());
  std::istringstream in;
  std::ostringstream out, err;
  Console console{in, out, err, localTime};
  const int code = runTool(static_cast<int>(arguments.size()), arguments.data(), console);
  ensure(code == 0, "tilladmin explains itself");
  return out.str();
}

std::string joined(const std::vector<std::string>& words) {
  std::string text;
  for (const std::string& word : words) text.append(" ").append(word);
  return text;
}

/// The command that the words begin with, as far as tilladmin knows it.
std::vector<std::string> commandIn(const std::vector<std::string>& words) {
  std::vector<std::string> command;
  for (const std::string& word : words) {
    if (word.starts_with('-')) break;
    command.push_back(word);
    if (helpOf(command).find("用法: tilladmin" + joined(command) + " ") == std::string::npos) {
      command.pop_back();
      break;
    }
  }
  return command;
}

}  // namespace

std::string parameterTable() {
  std::string text = "| 参数 | 意思 | 不设置时 |\n|---|---|---|\n";
  for (const ClsSysParam::Parameter& each : ClsSysParam().list()) {
    text.append("| `").append(each.name).append("` | ").append(each.meaning).append(" | ");
    text.append(each.value.empty() ? "空" : each.value).append(" |\n");
  }
  return text.append("\n");
}

std::string commandList() {
  std::istringstream help(helpOf({}));
  std::string text = "| 命令 | 做什么 |\n|---|---|\n";
  bool listed = false;
  for (std::string line; std::getline(help, line);) {
    std::istringstream parts(line);
    std::string name, meaning;
    if (listed && parts >> name && std::getline(parts >> std::ws, meaning))
      text.append("| `tilladmin ").append(name).append("` | ").append(meaning).append(" |\n");
    listed = listed || line == "命令:";
  }
  ensure(listed, "tilladmin lists its commands");
  return text.append("\n");
}

std::string all() {
  std::string text = "# 手册所依据的程序内容\n\n";
  text.append(menuLine("主菜单", frmMain::mainEntries()));
  text.append(menuLine("更多功能", frmMain::furtherEntries()));
  text.append(menuLine("销售界面的功能菜单", SaleSession::allMenuEntries()));
  return text.append(keyTables()).append(parameterTable()).append(commandList());
}

std::string keyFor(const std::string& effect) {
  const KeyGroup saleScreen = ::keyTable(KeyBoard()).front();
  for (const auto& [key, does] : saleScreen.rows)
    if (does.toStdString() == effect) return key.toStdString();
  throw Failure("no key does: " + effect);
}

std::string menuEntry(const std::string& caption) {
  for (const Entries& menu :
       {frmMain::mainEntries(), frmMain::furtherEntries(), SaleSession::allMenuEntries()}) {
    if (std::ranges::find(menu, caption, entryText) != menu.end()) return caption;
  }
  throw Failure("no menu has: " + caption);
}

std::string parameter(const std::string& name) {
  const auto parameters = ClsSysParam().list();
  if (std::ranges::find(parameters, name, &ClsSysParam::Parameter::name) == parameters.end())
    throw Failure("no such shop parameter: " + name);
  return name;
}

void checkCommand(const std::vector<std::string>& words) {
  const std::vector<std::string> command = commandIn(words);
  const std::string help = helpOf(command);
  if (command.empty() || help.find("\n命令:") != std::string::npos)
    throw Failure("no such command: tilladmin" + joined(words));
  for (const std::string& word : words) {
    if (word.starts_with("--") && help.find(word + " ") == std::string::npos)
      throw Failure("tilladmin" + joined(command) + " has no option " + word);
  }
}

}  // namespace program_facts
