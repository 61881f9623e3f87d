// Config.ini: a file that people edit by hand, in any editor.
#include <algorithm>
#include <string>

#include "Target.h"
#include "base/Failure.h"
#include "base/Gbk.h"
#include "platform/IniText.h"

namespace {

constexpr const char* kSection = "Ports";
constexpr const char* kKey = "LPT1";

}  // namespace

// The first byte of the input is the length of a value to be set; the value and the file follow.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const std::string_view input = textOf(data + 1, size - 1);
  const std::string_view value = input.substr(0, data[0] % 64);
  const std::string_view bytes = input.substr(value.size());

  IniText text(bytes);
  ensure(text.bytes() == bytes, "reading changes nothing");
  const auto other = text.value("Database", "Path");
  text.setValue(kSection, kKey, value);
  const auto stored = text.value(kSection, kKey);
  ensure(stored.has_value(), "what was set is there");
  const bool isPlain =
      std::all_of(value.begin(), value.end(), [](char c) { return c >= ' ' && c <= '~'; });
  ensure(!isPlain || stored == value, "what was set is what is read");
  ensure(text.value("Database", "Path") == other, "setting one key leaves the others");
  IniText again(text.bytes());
  ensure(again.value(kSection, kKey) == stored, "the file holds what was set");
  again.setValue(kSection, kKey, *stored);
  ensure(again.value(kSection, kKey) == stored, "a value that was read can be set");
  return 0;
}
