#pragma once

#include <string>
#include <vector>

#include "base/DateTime.h"
#include "saleslib/ShiftBooks.h"

class ClsSysParam;

/// What a shift's sheet is: figures in between, the sheet of a closed shift, or that once more.
enum class ShiftPaperKind { kReading, kClosed, kReprint };

/// A sheet or slip, line below line, and the name of its print job.
struct ShiftPaper {
  std::string name;
  std::vector<std::string> lines;
};

/// The sheet of a shift, in lines of at most so many columns (a Chinese character is two).
ShiftPaper shiftPaper(const Shift& shift, ShiftPaperKind kind, const DateTime& printed,
                      const ClsSysParam& shop, int columns);
/// The slip of cash that was put into the drawer or taken out.
ShiftPaper cashSlip(const CashMove& move, const ClsSysParam& shop, int columns);
