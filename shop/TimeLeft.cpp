#include "shop/TimeLeft.h"

#include <algorithm>
#include <cmath>

#include "base/Words.h"

std::string TimeLeft::text(double part, Moment now) const {
  using Seconds = std::chrono::duration<double>;
  constexpr double kFirstPart = 0.02;
  constexpr long kMinute = 60;
  const int percentage = static_cast<int>(part * 100);
  if (part < kFirstPart) return std::to_string(percentage) + "%";
  const double exactly = Seconds(now - begin_).count() * (1 - part) / part;
  const long left = std::max(1L, std::lround(exactly));
  if (left < kMinute) return Words::tr("%1%，还要约 %2 秒", percentage, left);
  return Words::tr("%1%，还要约 %2 分钟", percentage, (left + kMinute - 1) / kMinute);
}
