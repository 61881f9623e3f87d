#pragma once

#include <string>
#include <string_view>

/// Passwords as salted hashes (libsodium's password hashing, Argon2id). Any bytes and any length
/// count, NUL included.

/// What trying one password costs: of people, libsodium's interactive limits (64 MiB, some 50 ms);
/// of cards, whose holders wait at the till and of whom a shop has thousands, 8 MiB.
enum class HashCost { kPerson, kCard };

/// A new hash with a new salt. Throws StoreError when the machine lacks the memory.
std::string passwordHash(std::string_view password, HashCost cost = HashCost::kPerson);
/// Whether a stored text is a hash, and no password as it was typed.
[[nodiscard]] inline bool isHash(std::string_view stored) {
  return stored.starts_with("$argon2id$");
}
/// Whether the hash was made of that password.
[[nodiscard]] bool passwordMatches(const std::string& hash, std::string_view password);
/// A hash that no password is known for: verified against when there is no operator, so that a
/// wrong number takes as long as a wrong password.
const std::string& nobodysHash();
