#pragma once

#include <chrono>
#include <cstddef>
#include <string>

#include "sync/ShopCalls.h"

class Connection;
class MasterRows;

/// Brings down what changed at the shop's server: the shop's masters, and the others' part of stock
/// and cards. Beside a till that sells it writes a few rows at a time, in a transaction with the
/// place that they bring the till to, so that it goes on there whatever ends it. A row may come
/// again: written is what differs.
class Download {
 public:
  using Moment = std::chrono::steady_clock::time_point;
  /// Behind each transaction a key press comes in.
  static constexpr std::chrono::milliseconds kPause{20};
  enum class Company {
    kTill,   ///< somebody may sell meanwhile
    kAlone,  ///< nobody else has the file: many rows at a time
  };

  /// Connection and line outlive the download. The till belongs to a shop (ensure).
  Download(Connection& connection, ServerLine& line, Company company = Company::kTill);

  /// There may be something new at the server.
  void look() { isWanted_ = true; }
  enum class Outcome {
    kMore,    ///< there is more to do
    kIdle,    ///< nothing to do until it is to look again
    kFailed,  ///< no answer, or one that could not be written (see fault); tried when it looks
              ///< again
  };
  /// Asks, or writes some of what came; a data file that is busy is tried again. Does not throw
  /// for the server or for the data file.
  Outcome step(Moment now = std::chrono::steady_clock::now());

  const std::string& fault() const { return fault_; }
  /// Rows written or found as they should be, since it was made.
  std::size_t rows() const { return rows_; }

 private:
  Outcome ask();
  Outcome write();
  void apply(const ShopCalls::Change& change, MasterRows& masters);
  void removeRest(std::size_t end, const DownPlace& before, MasterRows& masters);
  DownPlace placeBehind(std::size_t end) const;
  Outcome failed(const std::string& fault);

  Connection& connection_;
  ShopCalls calls_;
  Company company_;
  bool isWanted_ = true;
  ShopCalls::Changes came_;
  DownPlace place_;          ///< of what was asked for
  std::size_t written_ = 0;  ///< of what came
  bool isWaiting_ = false;   ///< something that came is still to be written
  std::size_t rows_ = 0;
  Moment last_;
  std::string fault_;
};
