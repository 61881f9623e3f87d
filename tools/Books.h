#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <utility>

#include "base/DateTime.h"
#include "tools/Examination.h"

class Connection;

/// What the books hold.
struct BooksSummary {
  std::int64_t faults = 0;
  std::int64_t bills = 0, openBills = 0, paidBills = 0, lines = 0, returns = 0, stockRows = 0,
               entries = 0;
};

/// Examines a data file: the engine's own integrity, and that the books agree with themselves and
/// with what the till ever writes (tools/Examination.h has what is looked at). Not what a start is
/// needed for: how much must be in stock or on a card.
/// Sees one state of the file, however much the till writes meanwhile. Memory does not grow with
/// it.
class Books {
 public:
  /// Told each fault, as a sentence for the shop's owner.
  using Report = Examination::Say;

  Books(Connection& connection, Report report, Clock clock = localTime);

  /// Told what is worth a look and no fault; nobody unless set.
  void setRemarks(Report report) { remark_ = std::move(report); }
  /// Told now and then how many of the bills were examined, 0 ... 1.
  void setProgress(std::function<void(double part)> progress) { progress_ = std::move(progress); }

  /// Throws StoreError when the file cannot be read at all.
  BooksSummary check();

 private:
  void checkFile();
  void count();
  void fault(const std::string& text);

  Connection& connection_;
  Report report_;
  Clock clock_;
  Report remark_ = [](const std::string&) {};
  std::function<void(double)> progress_ = [](double) {};
  BooksSummary found_;
};
