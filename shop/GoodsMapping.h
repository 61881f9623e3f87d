#pragma once

#include <optional>
#include <string>
#include <vector>

#include "shop/GoodsField.h"

class Connection;

/// What the columns of a goods sheet hold.
struct GoodsMapping {
  struct Column {
    std::string heading;
    std::optional<GoodsField> field;  ///< none: the column is not read
  };
  std::vector<Column> columns;
  /// Whether somebody has to look at it: a heading was guessed, or not known.
  bool isGuessed = false;

  std::optional<std::size_t> placeOf(GoodsField field) const;
  /// Makes the column at that place the one that holds the field; another that did holds none.
  void choose(std::size_t place, std::optional<GoodsField> field);
  /// Why goods cannot be read by it, or an empty text: neither item code nor barcode.
  std::string fault() const;
};

/// The shop's own headings are taken as they are, others by what they most likely mean; a field is
/// in one column only, the first that fits best.
GoodsMapping guessMapping(const std::vector<std::string>& headings);

/// Mappings kept in the data file by names that people give them, for sheets that come again.
/// Throws Refusal for a name that is empty, longer than 255 characters or holds a control
/// character.
void saveMapping(Connection& connection, const std::string& name, const GoodsMapping& mapping);
std::vector<std::string> mappingNames(Connection& connection);
/// The mapping of that name for a sheet with these headings; columns that it does not know are not
/// read. Throws Refusal when there is none of that name, or none of its columns is in the sheet.
GoodsMapping namedMapping(Connection& connection, const std::string& name,
                          const std::vector<std::string>& headings);
/// The mapping for a sheet: the kept one whose headings are all in it, the latest of them, or else
/// the guessed one. The shop's own headings need none.
GoodsMapping mappingFor(Connection& connection, const std::vector<std::string>& headings);
