#include "bench/Table.h"

#include <algorithm>
#include <cstdio>

namespace {

// Three digits say all there is to say.
std::string number(double value) {
  char text[32];
  const int decimals = value >= 100 ? 0 : value >= 10 ? 1 : 2;
  std::snprintf(text, sizeof text, "%.*f", decimals, value);
  return text;
}

std::string time(double microseconds) {
  if (microseconds >= 1e6) return number(microseconds / 1e6) + " s";
  if (microseconds >= 1e3) return number(microseconds / 1e3) + " ms";
  return number(microseconds) + " µs";
}

std::string grouped(int size) {
  std::string text = std::to_string(size);
  for (int place = static_cast<int>(text.size()) - 3; place > 0; place -= 3) {
    text.insert(static_cast<std::size_t>(place), ",");
  }
  return text;
}

std::string claimText(const Claim& claim) {
  return claim.figure + " " + number(claim.measured) + " ≤ " + number(claim.most) +
         (claim.met() ? " met" : " **missed**");
}

std::string claimsText(const Measured& row) {
  std::string text;
  for (const Claim& claim : row.claims) text += (text.empty() ? "" : "; ") + claimText(claim);
  return text;
}

std::string timesText(const Samples& till) {
  if (till.count() == 0) return " | | | | ";
  return " | " + time(till.median()) + " | " + time(till.percentile99()) + " | " +
         time(till.most()) + " | " + std::to_string(till.count()) + " | ";
}

std::string againstText(const Measured& row) {
  if (row.bare.count() == 0) return " | ";
  return time(row.bare.median()) + " | " + number(row.ratio());
}

bool missedAny(const Measured& row) {
  return !std::all_of(row.claims.begin(), row.claims.end(), [](const Claim& c) { return c.met(); });
}

}  // namespace

const Measured* Table::find(const std::string& what, int size) const {
  const auto found = std::find_if(rows_.begin(), rows_.end(), [&](const Measured& row) {
    return row.what == what && row.size == size;
  });
  return found == rows_.end() ? nullptr : &*found;
}

void Table::print(std::ostream& out) const {
  out << "| what | size | median | p99 | max | samples | bare | ratio | limits |\n"
         "|---|--:|--:|--:|--:|--:|--:|--:|---|\n";
  for (const Measured& row : rows_) {
    out << "| " << row.what << " | " << (row.size > 0 ? grouped(row.size) : "")
        << timesText(row.till) << againstText(row) << " | " << claimsText(row) << " |\n";
  }
}

int Table::missed() const {
  return static_cast<int>(std::count_if(rows_.begin(), rows_.end(), missedAny));
}
