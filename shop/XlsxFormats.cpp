#include "shop/XlsxFormats.h"

#include <algorithm>

#include "base/NumberText.h"
#include "shop/XlsxParts.h"

namespace {

/// The formats that need no code (ECMA-376 part 1, 18.8.30): dates and times of every language.
bool isBuiltInDate(int identifier) {
  const auto isIn = [identifier](int first, int last) {
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

void XlsxFormats::read(const XlsxParts& parts, const std::string& part) {
  bool isOfCells = false;
  const auto valueOf = [](const XlsxParts::Attributes& attributes, std::string_view name) {
    const auto found = attributes.find(name);
    return found == attributes.end() ? std::string() : found->second;
  };
  parts.walk(part, {[&](std::string_view element, const XlsxParts::Attributes& attributes) {
                      if (element == "cellXfs") isOfCells = true;
                      const std::string identifier = valueOf(attributes, "numFmtId");
                      if (element == "numFmt")
                        codes_[identifier] = valueOf(attributes, "formatCode");
                      if (element == "xf" && isOfCells) cellFormats_.push_back(identifier);
                    },
                    [&](std::string_view element, const std::string&) {
                      if (element == "cellXfs") isOfCells = false;
                    }});
}

NumberForm XlsxFormats::form(std::size_t cellFormat) const {
  if (cellFormat >= cellFormats_.size()) return {};
  const auto code = codes_.find(cellFormats_[cellFormat]);
  if (code == codes_.end()) {
    const auto identifier = parseWhole32(cellFormats_[cellFormat]);
    return {identifier && isBuiltInDate(*identifier), 0};
  }
  const std::string signs = signsOf(code->second);
  if (signs.find_first_of("yYdD") != std::string::npos) return {true, 0};
  const bool isZeros = !signs.empty() && signs.find_first_not_of('0') == std::string::npos;
  return {false, isZeros ? static_cast<int>(std::min<std::size_t>(signs.size(), 18)) : 0};
}
