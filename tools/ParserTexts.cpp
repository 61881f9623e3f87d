#include "tools/ParserTexts.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <memory>
#include <optional>
#include <utility>

#include "base/NumberText.h"
#include "base/Text.h"
#include "base/Words.h"
#include "shop/Refusal.h"

namespace {

std::string optionsTitle() {
  return Words::tr("选项");
}

/// The part of the parser's text that names an argument or repeats what was typed.
std::string upTo(const std::string& text, const char* mark) {
  return text.substr(0, text.find(mark));
}
std::string after(const std::string& text, const char* mark) {
  const std::size_t at = text.find(mark);
  return at == std::string::npos ? std::string() : text.substr(at + std::string(mark).size());
}

std::string lackingText(const std::string& text) {
  if (text.starts_with("A subcommand")) return Words::tr("少了一个命令，或者不认识这个命令");
  return Words::tr("命令不完整：没有写 %1", upTo(text, " is required"));
}

std::string mismatchText(const std::string& text) {
  const std::string name =
      text.find(':') == std::string::npos ? upTo(after(text, " to "), ",") : upTo(text, ":");
  return Words::tr("%1 后面的值少了或者多了", name);
}

std::string listed(const std::vector<std::string>& words) {
  std::string all;
  for (const std::string& word : words) all += (all.empty() ? "" : Words::tr("、")) + word;
  return all;
}

}  // namespace

void speakChinese(CLI::App& app) {
  const auto formatter = std::make_shared<CLI::Formatter>();
  formatter->column_width(34);
  formatter->label("Usage", Words::tr("用法"));
  formatter->label("OPTIONS", Words::tr("选项"));
  formatter->label("Positionals", Words::tr("参数"));
  formatter->label("SUBCOMMANDS", Words::tr("命令"));
  formatter->label("SUBCOMMAND", Words::tr("命令"));
  formatter->label("REQUIRED", Words::tr("（必需）"));
  formatter->label("TEXT", Words::tr("文字"));
  formatter->label("INT", Words::tr("整数"));
  formatter->label("Excludes", Words::tr("不能同时写"));
  app.formatter(formatter);
  app.option_defaults()->group(optionsTitle());
  app.set_help_flag("-h,--help", Words::tr("显示用法"));
}

void groupInChinese(CLI::App& app) {
  app.get_help_ptr()->group(optionsTitle());
  for (CLI::App* command : app.get_subcommands(nullptr)) {
    command->group(Words::tr("命令"));
    groupInChinese(*command);
  }
}

std::string inChinese(const CLI::ParseError& error) {
  const std::string text = error.what();
  if (dynamic_cast<const CLI::RequiredError*>(&error)) return lackingText(text);
  if (dynamic_cast<const CLI::ExtrasError*>(&error)) {
    return Words::tr("有多余或不认识的参数：%1", after(text, ": "));
  }
  if (dynamic_cast<const CLI::ArgumentMismatch*>(&error)) return mismatchText(text);
  if (dynamic_cast<const CLI::ConversionError*>(&error)) {
    return Words::tr("参数的值不对：%1", after(text, ": "));
  }
  if (dynamic_cast<const CLI::ValidationError*>(&error)) return Words::tr("参数的值不对：%1", text);
  if (dynamic_cast<const CLI::ExcludesError*>(&error)) {
    return Words::tr("%1 和 %2 不能同时写", upTo(text, " excludes "), after(text, " excludes "));
  }
  return Words::tr("命令写得不对");
}

CLI::Validator oneOf(std::vector<std::string> words) {
  const auto take = [words = std::move(words)](std::string& typed) {
    const auto word = std::find_if(words.begin(), words.end(), [&](const std::string& each) {
      return equalIgnoringCase(each, typed);
    });
    if (word == words.end()) return Words::tr("只能是 %1，写的是“%2”", listed(words), typed);
    typed = *word;
    return std::string();
  };
  return CLI::Validator(take, "");
}

CLI::Validator wholeNumber(std::int64_t least, std::int64_t most) {
  return CLI::Validator(
      [least, most](const std::string& typed) {
        const std::optional<double> number = parseNumber(typed);
        const bool isRight =
            number && *number >= static_cast<double>(least) && *number <= static_cast<double>(most);
        return isRight ? std::string()
                       : Words::tr("应是 %1 到 %2 的整数，写的是“%3”", least, most, typed);
      },
      "");
}

std::optional<Date> typedDay(const std::string& typed, const Date& today) {
  if (typed.empty()) return std::nullopt;
  const std::optional<Date> day = parseTypedDate(typed, today.year);
  if (!day) throw Refusal(Words::tr("不是日期：%1", typed));
  return day;
}
