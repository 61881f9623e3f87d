#pragma once

#include <string>
#include <string_view>

/// Operator passwords as salted hashes (libsodium's password hashing, Argon2id at its interactive
/// limits: 64 MiB and some 50 ms each). Any bytes and any length count, NUL included.

/// A new hash with a new salt. Throws StoreError when the machine lacks the memory.
std::string passwordHash(std::string_view password);
/// Whether a stored text is a hash, and no password as it was typed.
[[nodiscard]] inline bool isHash(std::string_view stored) {
  return stored.starts_with("$argon2id$");
}
/// Whether the hash was made of that password.
[[nodiscard]] bool passwordMatches(const std::string& hash, std::string_view password);
/// A hash that no password is known for: verified against when there is no operator, so that a
/// wrong number takes as long as a wrong password.
const std::string& nobodysHash();
