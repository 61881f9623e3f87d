#pragma once

#include <filesystem>
#include <string>

#include "bench/BareEngine.h"

/// The least that a till can do for the same writes: prepared statements, one transaction each.
class BareTill {
 public:
  explicit BareTill(const std::filesystem::path& dataFile);

  /// One transaction: the item's stock goes down, a line of the open bill is inserted.
  void ring(const std::string& itemCode);
  /// One transaction that stores the open bill, with the member who bought (0: nobody).
  void settle(int member = 0);
  /// One transaction: the next bill's row.
  void openBill();
  /// Copies the log into the data file.
  void checkpoint() { checkpoint_.readAll(); }

 private:
  BareEngine engine_;
  BareEngine::Statement begin_, commit_, stock_, line_, bill_, member_, store_, checkpoint_;
  long long billNo_ = 0;
};
