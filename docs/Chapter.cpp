#include "docs/Chapter.h"

#include <fstream>
#include <functional>
#include <map>
#include <regex>
#include <sstream>
#include <vector>

#include "base/Failure.h"
#include "docs/ProgramFacts.h"

namespace fs = std::filesystem;

namespace {

/// The demo day numbers its pictures as it takes them; the first of a name counts.
std::string picture(const fs::path& folder, const std::string& argument) {
  const std::size_t bar = argument.find('|');
  const std::string ending = "-" + argument.substr(0, bar) + ".png";
  std::string found;
  for (const fs::directory_entry& each : fs::directory_iterator(folder)) {
    const std::string name = each.path().filename().string();
    const bool named = name.ends_with(ending) && name.size() == ending.size() + 2;
    if (named && (found.empty() || name < found)) found = name;
  }
  if (found.empty() || bar == std::string::npos)
    throw Failure("no such picture, or no caption: " + argument);
  return "![" + argument.substr(bar + 1) + "](" + found + ")";
}

std::string filled(const std::string& placeholder, const fs::path& pictures) {
  using Value = std::function<std::string(const std::string&)>;
  static const std::map<std::string, std::function<std::string()>> tables = {
      {"keys", program_facts::keyTables},
      {"parameters", program_facts::parameterTable},
      {"commands", program_facts::commandList}};
  const std::map<std::string, Value> values = {
      {"key", [](const std::string& effect) { return "`" + program_facts::keyFor(effect) + "`"; }},
      {"menu",
       [](const std::string& entry) { return "“" + program_facts::menuEntry(entry) + "”"; }},
      {"parameter",
       [](const std::string& name) { return "`" + program_facts::parameter(name) + "`"; }},
      {"picture", [&](const std::string& argument) { return picture(pictures, argument); }}};
  const std::size_t blank = placeholder.find(' ');
  if (blank == std::string::npos) {
    if (const auto table = tables.find(placeholder); table != tables.end()) return table->second();
  } else if (const auto value = values.find(placeholder.substr(0, blank)); value != values.end()) {
    return value->second(placeholder.substr(blank + 1));
  }
  throw Failure("no such placeholder: " + placeholder);
}

/// A line of an example: "    sudo tilladmin backup ...".
void lookAtCommand(const std::string& line) {
  static const std::regex command(R"(^\s+(?:sudo )?tilladmin (.*)$)");
  std::smatch found;
  if (!std::regex_match(line, found, command)) return;
  std::istringstream parts(found.str(1));
  std::vector<std::string> words;
  for (std::string word; parts >> word;) words.push_back(word);
  program_facts::checkCommand(words);
}

std::string filledLine(std::string line, const fs::path& pictures) {
  lookAtCommand(line);
  for (std::size_t at = 0; (at = line.find("{{", at)) != std::string::npos;) {
    const std::size_t end = line.find("}}", at);
    if (end == std::string::npos) throw Failure("a placeholder ends on its line");
    const std::string text = filled(line.substr(at + 2, end - at - 2), pictures);
    line.replace(at, end + 2 - at, text);
    at += text.size();
  }
  return line;
}

}  // namespace

std::string filledChapter(const fs::path& chapter, const fs::path& pictures) {
  std::ifstream file(chapter);
  if (!file) throw Failure("cannot read " + chapter.string());
  std::string text, line;
  for (int number = 1; std::getline(file, line); ++number) {
    try {
      text.append(filledLine(line, pictures)).append("\n");
    } catch (const Failure& failure) {
      throw Failure(chapter.string() + ":" + std::to_string(number) + ": " + failure.what());
    }
  }
  return text.append("\n");
}
