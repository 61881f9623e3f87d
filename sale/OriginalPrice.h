#pragma once

#include <cstdint>
#include <vector>

struct BillRow;

/// The original-price figure of one row: its price text times its quantity text, each taken as a
/// whole number first, halves to the even neighbour (12.50 counts 12). 0 for a row without a line.
/// Throws Overflow.
std::int64_t originalPrice(const BillRow& row);
/// The figure of a bill: the sum over its rows. It does not wrap; throws Overflow.
std::int64_t originalPrice(const std::vector<BillRow>& rows);
/// What that figure becomes when the row at `index` reads like `replacement`.
std::int64_t originalPrice(const std::vector<BillRow>& rows, int index, const BillRow& replacement);
