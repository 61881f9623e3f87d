#pragma once

#include <functional>
#include <string>
#include <vector>

#include "shop/Refusal.h"
#include "tools/Console.h"

/// Nobody answers any more.
class AnswersEnded : public Refusal {
 public:
  using Refusal::Refusal;
};

/// Asks at a terminal, a line each. An empty line is the answer in brackets; an answer that cannot
/// be is said, and asked for again. Throws AnswersEnded.
class Questions {
 public:
  explicit Questions(Console& console) : console_(console) {}

  /// Why a text is no answer; empty when it is one.
  using Check = std::function<std::string(const std::string& answer)>;
  std::string ask(
      const std::string& question, const std::string& byDefault,
      const Check& refusal = [](const std::string&) { return std::string(); });
  /// The place of the chosen one in `answers`.
  std::size_t choose(const std::string& question, const std::vector<std::string>& answers,
                     std::size_t byDefault);
  void say(const std::string& text) { console_.err << text << '\n'; }
  Console& console() { return console_; }

 private:
  Console& console_;
};
