#pragma once

#include <string>
#include <utility>
#include <vector>

/// A question of the first start about one parameter of the shop or one setting of its till. The
/// window and the terminal walk through the same list; what else is asked there (texts, people,
/// goods, devices) has pages of its own.
struct SetupQuestion {
  struct Answer {
    const char* value;
    const char* text;
  };

  const char* section;  ///< of Config.ini; none: a parameter of the shop
  const char* key;
  const char* text;             ///< what the owner is asked, in a line
  std::vector<Answer> answers;  ///< to choose from; none: a text is typed, or left empty
  const char* sensible;         ///< the value that is offered
  /// Why a value cannot be, a sentence; empty when it can.
  std::string (*refusal)(const std::string& value) = nullptr;

  bool isOfShop() const { return section == nullptr; }
};

/// In the order in which they are asked. A further one is one more entry: what nobody asks for
/// stays unset.
const std::vector<SetupQuestion>& setupQuestions();
