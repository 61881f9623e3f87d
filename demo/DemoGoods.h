#pragma once

#include <filesystem>
#include <string>

/// Goods of the demo shop, one for each way of finding and pricing a line; codes as a cashier types
/// them.
struct DemoGoods {
  std::string plain;          ///< barcode, retail price, no discount
  std::string another;        ///< barcode of a second plain item
  std::string promoted;       ///< barcode, on promotion today
  std::string discounted;     ///< barcode, with a discount of its own
  std::string byTheCase;      ///< barcode of a case, unit ratio above 1
  std::string weighed;        ///< barcode, sold by weight
  std::string unpriced;       ///< barcode, no price
  std::string twice;          ///< barcode of two items
  std::string specification;  ///< fragment of a specification, 2 to 5 characters
  std::string itemNumber;  ///< fragment of an item number, 2 to 5 characters, of no specification
  std::string category;    ///< name of the category of `plain`
  std::string card;        ///< number of a stored-value card with a balance
  std::string cardPassword;

  /// Picks them from a data file. Throws std::runtime_error naming what the shop lacks.
  static DemoGoods pick(const std::filesystem::path& dataFile);
};
