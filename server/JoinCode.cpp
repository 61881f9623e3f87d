#include "server/JoinCode.h"

#include <sodium.h>

#include "base/Failure.h"
#include "saleslib/Sodium.h"

namespace {

constexpr std::string_view kSigns = "0123456789ABCDEFGHJKMNPQRSTVWXYZ";
constexpr std::size_t kLength = 20, kTillLength = 2, kGroup = 5;

std::optional<char> signOf(char typed) {
  const char upper = typed >= 'a' && typed <= 'z' ? static_cast<char>(typed - 'a' + 'A') : typed;
  if (upper == 'O') return '0';
  if (upper == 'I' || upper == 'L') return '1';
  return kSigns.find(upper) == std::string_view::npos ? std::nullopt : std::optional<char>(upper);
}

}  // namespace

JoinCode JoinCode::draw(int till) {
  ensure(sodium_init() >= 0, "random numbers can be drawn");
  const auto size = static_cast<int>(kSigns.size());
  JoinCode code{till,
                {kSigns.at(static_cast<std::size_t>(till / size)),
                 kSigns.at(static_cast<std::size_t>(till % size))}};
  while (code.secret.size() < kLength)
    code.secret += kSigns[randombytes_uniform(static_cast<std::uint32_t>(size))];
  return code;
}

std::optional<JoinCode> JoinCode::parse(std::string_view typed) {
  JoinCode code;
  for (const char each : typed) {
    if (each == '-' || each == ' ') continue;
    const std::optional<char> sign = signOf(each);
    if (!sign) return std::nullopt;
    code.secret += *sign;
  }
  if (code.secret.size() != kLength) return std::nullopt;
  for (std::size_t at = 0; at < kTillLength; ++at)
    code.till = code.till * static_cast<int>(kSigns.size()) +
                static_cast<int>(kSigns.find(code.secret[at]));
  return code;
}

std::string JoinCode::shown() const {
  std::string text;
  for (std::size_t at = 0; at < secret.size(); at += kGroup)
    text += (at == 0 ? "" : "-") + secret.substr(at, kGroup);
  return text;
}

std::string drawPassword() {
  return randomDigits(32);
}
