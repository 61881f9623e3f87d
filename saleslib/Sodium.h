#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "saleslib/Export.h"

/// Starts libsodium, before it is used, the first time. Throws StoreError.
void startSodium();

/// The generic hash of a text, BLAKE2b without a key (RFC 7693), of that many bytes (16 to 64), two
/// hexadecimal digits each. Throws StoreError.
std::string hashDigits(std::string_view text, std::size_t bytes);
/// So many bytes (at most 64) that nobody can guess, two hexadecimal digits each. Throws
/// StoreError.
TESSALY_API std::string randomDigits(std::size_t bytes);
