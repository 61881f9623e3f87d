#include "shop/ShownField.h"

#include "base/Text.h"
#include "shop/Column.h"

std::string shownField(const std::string& field) {
  constexpr std::size_t kLongestShown = 40;
  if (field.empty()) return "空着";
  if (hasControlCharacter(field)) return "里面有控制字符";
  std::string shown = "写的是“";
  shown.append(firstCharacters(field, kLongestShown));
  if (characters(field) > kLongestShown) shown.append("……");
  return shown.append("”");
}

std::string expectationMissed(const Column& column, const std::string& field) {
  std::string text = "“";
  text.append(column.name).append("”").append(column.expectation());
  return text.append("，").append(shownField(field));
}
