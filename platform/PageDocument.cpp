#include "platform/PageDocument.h"

#include <cmath>

#include "platform/Twips.h"

int PageDocument::lineHeight() const {
  constexpr double kLeading = 1.2;
  return static_cast<int>(std::lround(fontPoints * kTwipsPerPoint * kLeading));
}

int PageDocument::addLines(int y, const std::vector<std::string>& lines) {
  for (const std::string& line : lines) {
    texts.push_back({0, y, line});
    y += lineHeight();
  }
  return y;
}
