#pragma once

#include <cstddef>

class ClsSellItem;
class Connection;
struct BillRow;

/// A line's row in the list, not yet tagged; `position` is its number. The stock figure is what the
/// data file has at this moment, plus 1. Throws StoreError, Overflow.
BillRow lineRow(Connection& connection, const ClsSellItem& line, std::size_t position);
