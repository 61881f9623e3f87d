// Text at the edges: widths count what is sent, and no character is cut.
#include <string>

#include "Target.h"
#include "base/Failure.h"
#include "base/Gbk.h"
#include "base/Text.h"

// The first byte of the input is a number of columns, the rest is the text.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const std::size_t columns = data[0] % 50;
  const std::string text(textOf(data + 1, size - 1));

  ensure(gbk::encode(text).size() == gbk::width(text), "what is counted is what is sent");
  const std::string cut = gbk::cut(text, columns);
  ensure(text.starts_with(cut) && gbk::width(cut) <= columns, "a beginning that fits");
  ensure(gbk::encode(text).starts_with(gbk::encode(cut)), "no character is cut");
  ensure(gbk::width(gbk::centred(text, columns)) >= gbk::width(text), "nothing lost when centred");

  const std::string read = gbk::decode(text);
  ensure(gbk::decode(gbk::encode(read)) == gbk::decode(gbk::encode(gbk::decode(gbk::encode(read)))),
         "reading what was written settles");
  ensure(characters(firstCharacters(text, columns)) <= columns, "first characters");
  ensure(halfWidth(halfWidth(text)) == halfWidth(text), "folded once");
  ensure(trimmed(trimmed(text)) == trimmed(text), "trimmed once");
  return 0;
}
