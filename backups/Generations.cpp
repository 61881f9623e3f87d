#include "backups/Generations.h"

#include <algorithm>
#include <functional>
#include <set>

namespace {

constexpr std::ptrdiff_t kDays = 7;
constexpr std::size_t kWeeks = 4;

int weekOf(const Date& date) {
  return daysBetween(Date{1, 1, 1}, date) / 7;  // that day is a Monday
}

}  // namespace

bool mayMakeGeneration(const std::vector<Date>& existing, const Date& today) {
  return std::ranges::find(existing, today) == existing.end() ||
         std::ranges::none_of(existing, [&](const Date& date) { return date > today; });
}

std::vector<Date> supersededGenerations(std::vector<Date> existing, const Date& today) {
  std::erase_if(existing, [&](const Date& date) { return date > today; });
  std::ranges::sort(existing, std::greater());
  existing.erase(existing.begin(), existing.begin() + std::min(kDays, std::ssize(existing)));
  std::set<int> weeks;
  std::erase_if(existing, [&](const Date& date) {
    return weeks.size() < kWeeks && weeks.insert(weekOf(date)).second;
  });
  return existing;
}
