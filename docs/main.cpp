// What the handbook takes from the program, as Markdown on the standard output.
#include <QCoreApplication>
#include <exception>
#include <iostream>
#include <string>

#include "app/Language.h"
#include "docs/Chapter.h"
#include "docs/ProgramFacts.h"

namespace {

constexpr const char* kUsage =
    "usage: handbook_facts key-card                       the card for the cashier\n"
    "       handbook_facts key-card.en                    the same in English\n"
    "       handbook_facts facts                          what the handbook's prose rests on\n"
    "       handbook_facts fill PICTURES CHAPTER...       the handbook; PICTURES: the demo day's "
    "folder\n";

}  // namespace

int main(int count, char** arguments) {
  const QCoreApplication application(count, arguments);
  const std::string what = count > 1 ? arguments[1] : "";
  try {
    if (what == "key-card" && count == 2) {
      std::cout << program_facts::keyCard();
    } else if (what == "key-card.en" && count == 2) {
      speak(Language::kEnglish);
      std::cout << program_facts::keyCard();
    } else if (what == "facts" && count == 2) {
      std::cout << program_facts::all();
    } else if (what == "fill" && count > 3) {
      for (int chapter = 3; chapter < count; ++chapter)
        std::cout << filledChapter(arguments[chapter], arguments[2]);
    } else {
      std::cerr << kUsage;
      return 2;
    }
  } catch (const std::exception& failure) {
    std::cerr << "handbook_facts: " << failure.what() << '\n';
    return 1;
  }
  return std::cout.flush() ? 0 : 1;
}
