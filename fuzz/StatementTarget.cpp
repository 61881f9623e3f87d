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

void translateAsGiven(std::string_view statement) {
  try {
    const EngineStatement engine = translate(statement);
    ensure(engine.text.find('\'') == std::string::npos, "no quote reaches the engine");
    ensure(
        engine.text.find("--") == std::string::npos || engine.text.find('"') != std::string::npos,
        "no comment reaches the engine");
    // A name in brackets may hold question marks.
    const auto marks = std::count(engine.text.begin(), engine.text.end(), '?');
    ensure(static_cast<std::size_t>(marks) >= engine.values.size(), "a place for each value");
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
