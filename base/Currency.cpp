#include "base/Currency.h"

#include "base/Decimal.h"
#include "base/Failure.h"
#include "base/Rounding.h"
#include "base/Words.h"

namespace {

constexpr int kDecimals = 4;
constexpr std::int64_t kScaledPerFen = Currency::kScale / 100;

[[noreturn]] void overflow() {
  throw Overflow(Words::tr("金额太大，超出了可以计算的范围。"));
}

Currency checked(Wide scaled) {
  if (!fits<std::int64_t>(scaled)) overflow();
  return Currency::fromScaled(static_cast<std::int64_t>(scaled));
}

Wide product(Wide a, Wide b) {
  Wide result = 0;
  if (__builtin_mul_overflow(a, b, &result)) overflow();
  return result;
}

Decimal decimalOrOverflow(double value) {
  const std::optional<Decimal> decimal = Decimal::fromDouble(value);
  if (!decimal) overflow();
  return *decimal;
}

}  // namespace

Currency Currency::fromYuan(std::int64_t yuan) {
  return checked(Wide{yuan} * kScale);
}

std::optional<Currency> Currency::parse(std::string_view text) {
  const std::optional<Decimal> number = Decimal::parse(text);
  if (!number) return std::nullopt;
  const Wide scaled =
      dividedHalfEven(Wide{number->mantissa} * kScale, powerOfTen(number->decimals));
  if (!fits<std::int64_t>(scaled)) return std::nullopt;
  return fromScaled(static_cast<std::int64_t>(scaled));
}

Currency Currency::operator-() const {
  return Currency() - *this;
}

Currency& Currency::operator+=(Currency other) {
  if (__builtin_add_overflow(scaled_, other.scaled_, &scaled_)) overflow();
  return *this;
}

Currency& Currency::operator-=(Currency other) {
  if (__builtin_sub_overflow(scaled_, other.scaled_, &scaled_)) overflow();
  return *this;
}

Currency lineAmount(Currency price, double quantity, Discount discount) {
  const Decimal count = decimalOrOverflow(quantity);
  const Decimal factor = decimalOrOverflow(discount.factor());
  const Wide exact = product(product(price.scaled(), count.mantissa), factor.mantissa);
  // The product has this many decimals; two of them stay.
  const int dropped = kDecimals + count.decimals + factor.decimals - 2;
  if (dropped > kMostZeros) return Currency();  // 38 digits at most: less than half a fen
  return checked(product(dividedHalfAway(exact, powerOfTen(dropped)), kScaledPerFen));
}

std::int64_t wholeHalfEven(Currency amount) {
  return static_cast<std::int64_t>(dividedHalfEven(amount.scaled(), Currency::kScale));
}

Currency roundedToFen(Currency amount) {
  return checked(dividedHalfAway(amount.scaled(), kScaledPerFen) * kScaledPerFen);
}

std::optional<std::int16_t> pointsAfter(Currency amount, std::int16_t unit, std::int16_t points) {
  if (unit <= 0) return std::nullopt;
  // Rounded as one sum: which neighbour is even depends on the points held before.
  const Wide perPoint = Wide{Currency::kScale} * unit;
  const Wide sum = dividedHalfEven(amount.scaled() + points * perPoint, perPoint);
  if (!fits<std::int16_t>(sum)) return std::nullopt;
  return static_cast<std::int16_t>(sum);
}
