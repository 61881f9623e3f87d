#include "base/SignificantDigits.h"

#include <charconv>
#include <cmath>

#include "base/Failure.h"

SignificantDigits::SignificantDigits(double value) : negative_(value < 0) {
  ensure(std::isfinite(value), "significant digits of a finite number");
  // "d.dddddddddddddde-308"; to_chars and not printf, whose point depends on the locale.
  std::array<char, 32> text{};
  const auto written = std::to_chars(text.data(), text.data() + text.size(), std::fabs(value),
                                     std::chars_format::scientific, kMost - 1);
  const std::string_view all(text.data(), static_cast<std::size_t>(written.ptr - text.data()));
  const std::size_t e = all.find('e');
  for (char c : all.substr(0, e)) {
    if (c != '.') digits_[count_++] = c;
  }
  while (count_ > 1 && digits_[count_ - 1] == '0') --count_;
  const std::size_t power = all[e + 1] == '+' ? e + 2 : e + 1;
  std::from_chars(all.data() + power, written.ptr, exponent_);
}
