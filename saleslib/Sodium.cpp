#include "saleslib/Sodium.h"

#include <sodium.h>

#include <array>

#include "base/Failure.h"
#include "base/Words.h"
#include "store/StoreError.h"

namespace {

constexpr std::size_t kMostBytes = crypto_generichash_BYTES_MAX;
using Bytes = std::array<unsigned char, kMostBytes>;

std::string digitsOf(const Bytes& bytes, std::size_t count) {
  std::array<char, 2 * kMostBytes + 1> digits{};
  return sodium_bin2hex(digits.data(), digits.size(), bytes.data(), count);
}

}  // namespace

void startSodium() {
  if (sodium_init() < 0) throw StoreError(Words::tr("密码组件无法启动，请与管理员联系！"));
}

std::string hashDigits(std::string_view text, std::size_t bytes) {
  ensure(bytes >= crypto_generichash_BYTES_MIN && bytes <= kMostBytes, "a hash has such a length");
  startSodium();
  Bytes hash{};
  crypto_generichash(hash.data(), bytes, reinterpret_cast<const unsigned char*>(text.data()),
                     text.size(), nullptr, 0);
  return digitsOf(hash, bytes);
}

std::string randomDigits(std::size_t bytes) {
  ensure(bytes <= kMostBytes, "so many bytes are drawn at once");
  startSodium();
  Bytes drawn{};
  randombytes_buf(drawn.data(), bytes);
  return digitsOf(drawn, bytes);
}
