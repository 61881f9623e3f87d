#pragma once

#include <cstdint>
#include <string_view>

#include "base/Currency.h"

class Row;

/// Columns in the types that the business objects hold. Null reads as 0; a value that does not fit
/// throws StoreError.
std::int16_t whole16(const Row& row, std::string_view column);
std::int32_t whole32(const Row& row, std::string_view column);
Currency money(const Row& row, std::string_view column);

/// A key that the data file gave, as the 32-bit number that bills and lines carry. Throws
/// StoreError.
std::int32_t key32(std::int64_t key);
