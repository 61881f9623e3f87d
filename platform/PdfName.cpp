#include "platform/PdfName.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <string_view>

#include "base/Text.h"

namespace {

constexpr std::string_view kPattern = "dddddddd-dddddd-dddd-";
constexpr std::int64_t kJobsPerSecond = 10000;

/// Date, time and counter of a job's file name read as one number; 0 for any other name.
std::int64_t numberIn(std::string_view fileName) {
  if (fileName.size() < kPattern.size()) return 0;
  std::int64_t number = 0;
  for (std::size_t i = 0; i < kPattern.size(); ++i) {
    const char c = fileName[i];
    const bool isDigit = c >= '0' && c <= '9';
    if (kPattern[i] == 'd' ? !isDigit : c != kPattern[i]) return 0;
    if (isDigit) number = number * 10 + (c - '0');
  }
  return number;
}

std::int64_t firstNumberAt(const DateTime& time) {
  const std::int64_t day = time.date.year * 10000LL + time.date.month * 100LL + time.date.day;
  const std::int64_t clock = time.hour * 10000LL + time.minute * 100LL + time.second;
  return (day * 1000000 + clock) * kJobsPerSecond + 1;
}

std::string fileNamePart(const std::string& job) {
  constexpr std::size_t kMostCharacters = 40;
  std::string name = firstCharacters(job, kMostCharacters);
  const auto isUnfit = [](char c) {
    return static_cast<unsigned char>(c) < ' ' ||
           std::string_view("/\\:*?\"<>|").find(c) != std::string_view::npos;
  };
  std::replace_if(name.begin(), name.end(), isUnfit, '_');
  return name;
}

}  // namespace

std::string nextPdfName(const std::filesystem::path& folder, const DateTime& now,
                        const std::string& job) {
  std::int64_t number = firstNumberAt(now);
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    number = std::max(number, numberIn(entry.path().filename().string()) + 1);
  }
  std::string digits = std::to_string(number);
  digits.insert(0, 18 - std::min<std::size_t>(18, digits.size()), '0');
  return digits.substr(0, 8) + "-" + digits.substr(8, 6) + "-" + digits.substr(14) + "-" +
         fileNamePart(job) + ".pdf";
}
