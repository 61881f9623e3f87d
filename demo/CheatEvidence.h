#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

#include "base/Currency.h"

/// What was tried in the demo day's late shifts, as whoever tried it knows it.
struct Cheats {
  Currency pocketed;  ///< while the drawer was open without a sale, in the first of the two shifts
  std::int64_t returnedBill = 0;  ///< in the first shift, by the cashier who had sold it
  Currency refund;
  std::int64_t cancelledBill = 0;  ///< in the second shift, after its customer had paid
  Currency cancelled;
};

/// Whether an owner finds out: by the shift sheets as they were printed, the journal, and the
/// check.
class CheatEvidence {
 public:
  /// `shop` is the program folder of that day, whose till has ended; `printed` what its line
  /// printer printed.
  CheatEvidence(std::filesystem::path shop, Cheats cheats, const std::string& printed);

  /// What does not show, a line each; empty when everything does. A bill is redated in a copy of
  /// the data file, `copy`, as one does who has a tool for such files.
  std::string missing(const std::filesystem::path& copy) const;

 private:
  std::string sheet(std::int64_t shift) const;
  std::string missingOnSheets() const;
  std::string missingInJournal() const;
  std::string missingInCheck(const std::filesystem::path& copy) const;

  std::filesystem::path shop_;
  Cheats cheats_;
  std::string printed_;  ///< with one blank for several
};
