#include "shop/ShownField.h"

#include "base/Text.h"
#include "base/Words.h"
#include "shop/Column.h"

std::string shownField(const std::string& field) {
  constexpr std::size_t kLongestShown = 40;
  if (field.empty()) return Words::tr("空着");
  if (hasControlCharacter(field)) return Words::tr("里面有控制字符");
  const bool isCut = characters(field) > kLongestShown;
  return Words::tr("写的是“%1”", firstCharacters(field, kLongestShown) + (isCut ? "……" : ""));
}

std::string expectationMissed(const Column& column, const std::string& field) {
  return Words::tr("“%1”%2，%3", column.name, column.expectation(), shownField(field));
}
