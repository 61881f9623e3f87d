#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "base/DateTime.h"

namespace CLI {
class App;
class ParseError;
class Validator;
}  // namespace CLI

/// The command line parser's texts in Chinese: it has none of its own but English ones.

/// The words of the help texts; before any command is added.
void speakChinese(CLI::App& app);
/// The headings of options and commands; after all commands were added.
void groupInChinese(CLI::App& app);
/// What is wrong with a command line, a sentence without its full stop.
std::string inChinese(const CLI::ParseError& error);

/// One of these words, without regard to case; the option gets it as it is written here.
CLI::Validator oneOf(std::vector<std::string> words);
/// A whole number in these bounds.
CLI::Validator wholeNumber(std::int64_t least, std::int64_t most);

/// A day as people type one, in this year where they left it out; nothing when nothing was typed.
/// Throws Refusal.
std::optional<Date> typedDay(const std::string& typed, const Date& today);
