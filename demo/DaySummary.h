#pragma once

#include <filesystem>
#include <map>
#include <string>

/// The books before and after a day, and whether they agree with each other.
class DaySummary {
 public:
  /// Notes the stock of every item before the day.
  explicit DaySummary(const std::filesystem::path& dataFile);

  /// Holds a day's query as it was exported to CSV against the lines that are sold by now.
  void compareExport(const std::filesystem::path& exported);
  /// Takes in what somebody else found missing, a line each.
  void add(const std::string& faults) { faults_ += faults; }
  /// Writes the day's bills, takings and stock as a text, and what does not agree. False when
  /// something does not: a bill count other than `settledBills`, an open bill left behind, a line
  /// sum, a stock figure, or what was found before.
  bool write(const std::filesystem::path& file, int settledBills) const;

 private:
  std::filesystem::path dataFile_;
  std::map<std::string, double> stockBefore_;
  std::string faults_;
};
