#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <vector>

class XlsxParts;

/// What a cell's format makes of a number, as far as a text can show it.
struct NumberForm {
  bool isDate = false;
  int leastDigits = 0;  ///< of a whole number, zeros in front
};

/// The formats of a workbook's cells (ECMA-376 part 1, 18.8).
class XlsxFormats {
 public:
  /// Reads the part that has them. Throws std::exception when it is no XML.
  void read(const XlsxParts& parts, const std::string& part);
  /// Of the cell format with that number; a plain one when there is none.
  NumberForm form(std::size_t cellFormat) const;

 private:
  std::map<std::string, std::string> codes_;  ///< by their identifiers
  std::vector<std::string> cellFormats_;      ///< identifiers of their codes
};
