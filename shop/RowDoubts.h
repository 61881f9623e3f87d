#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "store/Value.h"

struct Table;

/// Whether digits of the length of a printed barcode (8, 12 or 13) end in another check digit than
/// GS1 gives them: the shop's own numbers may, a mistyped one does.
bool hasWrongCheckDigit(std::string_view barcode);

/// What is likely wrong with a row of goods that can be stored all the same, for the one who keeps
/// the file; empty when nothing is. `values` are in the order of the table's columns, and
/// `isInFile` says which of them the file has.
std::string doubtsOf(const Table& table, const std::vector<Value>& values,
                     const std::vector<bool>& isInFile);
