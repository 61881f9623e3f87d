#include "shop/TimeLeft.h"

#include <algorithm>
#include <cmath>

std::string TimeLeft::text(double part, Moment now) const {
  using Seconds = std::chrono::duration<double>;
  constexpr double kFirstPart = 0.02;
  constexpr long kMinute = 60;
  std::string text = std::to_string(static_cast<int>(part * 100)) + "%";
  if (part < kFirstPart) return text;
  const double exactly = Seconds(now - begin_).count() * (1 - part) / part;
  const long left = std::max(1L, std::lround(exactly));
  if (left < kMinute) return text.append("，还要约 ").append(std::to_string(left)).append(" 秒");
  return text.append("，还要约 ")
      .append(std::to_string((left + kMinute - 1) / kMinute))
      .append(" 分钟");
}
