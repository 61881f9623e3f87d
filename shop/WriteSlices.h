#pragma once

#include <chrono>
#include <functional>

class Connection;

/// Long writing beside a till that rings: many transactions of some 80 ms, and behind each a pause
/// that is long enough for one who waits to come in between.
class WriteSlices {
 public:
  enum class Company {
    kAlone,   ///< nobody else has the file, or a transaction is open anyway
    kOthers,  ///< others write to it meanwhile
  };

  WriteSlices(Connection& connection, Company company)
      : connection_(connection), company_(company) {}

  /// Calls `slice` in one transaction after the other until it says false; the number tells how
  /// many rows it should write, so that it takes the time above. Throws what it throws: then that
  /// slice is taken back.
  /// `goOn` is asked before each of them, outside of any transaction of this class, and ends it by
  /// saying no.
  void run(
      const std::function<bool(int rows)>& slice,
      const std::function<bool()>& goOn = [] { return true; });

 private:
  void adapt(std::chrono::steady_clock::duration taken);
  void pause();

  Connection& connection_;
  Company company_;
  int rows_ = 500;
};
