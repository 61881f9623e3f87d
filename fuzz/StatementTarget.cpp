// The program's own statements: hostile ones end in a refusal, and no text in quotes gets out of
// them.
#include <algorithm>
#include <string>
#include <variant>

#include "Target.h"
#include "base/Failure.h"
#include "store/Dialect.h"
#include "store/Literal.h"
#include "store/StoreError.h"

namespace {

/// What is left of an engine text without the names in double quotes, which may hold anything else.
std::string withoutNames(const std::string& text) {
  std::string rest;
  bool isName = false;
  for (const char each : text) {
    if (each == '"')
      isName = !isName;
    else if (!isName)
      rest += each;
  }
  ensure(!isName, "every name ends");
  return rest;
}

void translateAsGiven(std::string_view statement) {
  try {
    const EngineStatement engine = translate(statement);
    const std::string text = withoutNames(engine.text);
    for (const char* what : {"'", "--", "/*", ";", "`", "["}) {
      ensure(text.find(what) == std::string::npos, "no quote, comment or second statement");
    }
    ensure(std::count(text.begin(), text.end(), '?') == std::ssize(engine.values),
           "a place for each value");
  } catch (const StoreError&) {
    return;
  }
}

void translateAsValue(std::string_view typed) {
  const EngineStatement plain =
      translate("select * from member where bh=" + quotedText(typed) + " and password='x'");
  ensure(plain.text == "select * from member where bh=?  and password=? ", "the statement stays");
  ensure(plain.values.size() == 2 && std::get<std::string>(plain.values[0]) == typed,
         "what was typed is the value");
  const auto search = [](std::string_view fragment) {
    return translate("select * from tmda where ggxh like" + likeFragment(fragment));
  };
  const EngineStatement like = search(typed);
  ensure(like.text == search("").text || like.text == search("550ml").text, "the search stays");
  ensure(std::get<std::string>(like.values.at(0)) == "%" + std::string(typed) + "%",
         "what was typed is looked for");
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view input = textOf(data, size);
  translateAsGiven(input);
  translateAsValue(input);
  return 0;
}
