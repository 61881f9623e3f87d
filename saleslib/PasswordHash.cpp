#include "saleslib/PasswordHash.h"

#include <sodium.h>

#include <array>

#include "base/Words.h"
#include "saleslib/Sodium.h"
#include "store/StoreError.h"

namespace {

constexpr std::size_t kCardMemory = 8 << 20;  // bytes

}  // namespace

std::string passwordHash(std::string_view password, HashCost cost) {
  startSodium();
  const std::size_t memory =
      cost == HashCost::kCard ? kCardMemory : crypto_pwhash_MEMLIMIT_INTERACTIVE;
  std::array<char, crypto_pwhash_STRBYTES> hash{};
  if (crypto_pwhash_str(hash.data(), password.data(), password.size(),
                        crypto_pwhash_OPSLIMIT_INTERACTIVE, memory) != 0) {
    throw StoreError(Words::tr("内存不足，密码没有保存！"));
  }
  return hash.data();
}

bool passwordMatches(const std::string& hash, std::string_view password) {
  startSodium();
  return crypto_pwhash_str_verify(hash.c_str(), password.data(), password.size()) == 0;
}

// Made from random bytes that nobody kept, with the limits of passwordHash.
const std::string& nobodysHash() {
  static const std::string hash =
      "$argon2id$v=19$m=65536,t=2,p=1$mLqcD5TJV4ZBBI+wvcM2/Q"
      "$GxjwXkg8H/3ER539s/TuvCsROC39xfnOc7ilj+g70tQ";
  return hash;
}
