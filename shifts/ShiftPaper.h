#pragma once

#include "base/DateTime.h"
#include "devices/ReceiptPrinter.h"
#include "saleslib/ShiftBooks.h"

class ClsSysParam;

/// What a shift's sheet is: figures in between, the sheet of a closed shift, or that once more.
enum class ShiftPaperKind { kReading, kClosed, kReprint };

/// The sheet of a shift, in the columns of that paper.
LineDocument shiftPaper(const Shift& shift, ShiftPaperKind kind, const DateTime& printed,
                        const ClsSysParam& shop, const Paper& paper);
/// The slip of cash that was put into the drawer or taken out.
LineDocument cashSlip(const CashMove& move, const ClsSysParam& shop, const Paper& paper);
