#include "shop/XlsxFormats.h"

#include <algorithm>
#include <utility>

namespace {

/// The formats that need no code (ECMA-376 part 1, 18.8.30): dates and times of every language.
bool isBuiltInDate(std::size_t identifier) {
  const auto isIn = [identifier](std::size_t first, std::size_t last) {
    return identifier >= first && identifier <= last;
  };
  return isIn(14, 22) || isIn(27, 36) || isIn(45, 47) || isIn(50, 58);
}

/// The signs of a code that stand for something of the number, without texts, colours and
/// conditions.
std::string signsOf(std::string_view code) {
  std::string signs;
  for (std::size_t place = 0; place < code.size() && code[place] != ';'; ++place) {
    if (code[place] == '"') {
      place = std::min(code.find('"', place + 1), code.size());
    } else if (code[place] == '[') {
      place = std::min(code.find(']', place), code.size());
    } else if (code[place] == '\\' || code[place] == '_' || code[place] == '*') {
      ++place;
    } else {
      signs.push_back(code[place]);
    }
  }
  return signs;
}

}  // namespace

std::size_t XlsxFormats::commit_number_format() {
  codes_[identifier_] = std::exchange(code_, {});
  return identifier_;
}

std::size_t XlsxFormats::commit_cell_xf() {
  cellFormats_.push_back(std::exchange(cellNumberFormat_, 0));
  return cellFormats_.size() - 1;
}

std::size_t XlsxFormats::commit_cell_style_xf() {
  cellNumberFormat_ = 0;
  return 0;
}

std::size_t XlsxFormats::commit_dxf() {
  cellNumberFormat_ = 0;
  return 0;
}

NumberForm XlsxFormats::form(std::size_t cellFormat) const {
  if (cellFormat >= cellFormats_.size()) return {};
  const auto code = codes_.find(cellFormats_[cellFormat]);
  if (code == codes_.end()) return {isBuiltInDate(cellFormats_[cellFormat]), 0};
  const std::string signs = signsOf(code->second);
  if (signs.find_first_of("yYdD") != std::string::npos) return {true, 0};
  const bool isZeros = !signs.empty() && signs.find_first_not_of('0') == std::string::npos;
  return {false, isZeros ? static_cast<int>(std::min<std::size_t>(signs.size(), 18)) : 0};
}
