#pragma once

#include <chrono>
#include <string>

#include "shop/GoodsImport.h"
#include "shop/TimeLeft.h"
#include "tools/Console.h"

/// What the tool says of a goods sheet, to whoever imports it or begins with it.

/// A line on the terminal that shows how far the work is, twice a second; in a script's log a line
/// of its own every ten seconds.
class ProgressBar {
 public:
  explicit ProgressBar(Console& console) : console_(console) {}
  ~ProgressBar() {
    if (isShown_ && console_.isTerminal) console_.err << '\n' << std::flush;
  }
  ProgressBar(const ProgressBar&) = delete;
  ProgressBar& operator=(const ProgressBar&) = delete;

  GoOn goOn() {
    return [this](double part) {
      show(part);
      return true;
    };
  }

 private:
  void show(double part);

  Console& console_;
  std::chrono::steady_clock::time_point last_ = std::chrono::steady_clock::now();
  TimeLeft left_{last_};
  bool isShown_ = false;
};

/// "heading=field" says what a column holds, "heading=" that it is not read. Throws Refusal when
/// there is none of that name.
void setColumn(GoodsMapping& mapping, const std::string& wanted);

/// What each column holds, and what a sheet would do, the first rows of each kind.
void print(const GoodsMapping& mapping, std::ostream& out);
void print(const GoodsPreview& preview, std::ostream& out);
