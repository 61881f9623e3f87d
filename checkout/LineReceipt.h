#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "base/Currency.h"
#include "checkout/Outage.h"

class CashDrawer;
class posMod;
struct SaleState;

/// The receipt on a line printer, printed while the sale goes on. Texts are GBK on the wire, each
/// line followed by CR LF; the port is opened for each procedure and closed after it.
///
/// Nothing throws: a printer that fails is reported once per outage and the sale goes on. A failing
/// port can cost two seconds, so after a failure the bill's lines are kept and tried again with its
/// footer only, and a drawer on the same port is not tried then. When that fails too, the paper
/// starts again with the next bill's heading.
class LineReceipt {
 public:
  LineReceipt(posMod& pos, SaleState& state, CashDrawer& drawer, Outage::Report report);

  /// The heading of the next receipt. Only when line printing is on.
  void PrintHeader();
  /// The current line. Only when line printing is on.
  void PrintLine();
  /// Totals and payment of the open bill, and the heading of the next receipt; the drawer opens
  /// after the first two lines. Without line printing it only opens the drawer.
  void PrintFoot();
  /// Two empty lines, so that a bill put aside stands apart. Only when line printing is on.
  void FeedLines();

 private:
  // The texts of these procedures, without line ends, for paper of the state's widths.
  std::vector<std::string> headerLines() const;
  std::string lineText() const;
  /// Down to the date; the drawer opens after it.
  std::vector<std::string> totalLines() const;
  /// Below it; empty texts are not printed.
  std::vector<std::string> paymentLines() const;
  /// Quantity and amount, each in its column with a blank before it; longer than the two columns
  /// when a figure needs it.
  std::string figures(double quantity, Currency amount) const;
  /// Columns that these figures leave of a line; none when they fill it.
  std::size_t roomBeside(const std::string& figures) const;
  /// Prints what is unsent and these lines, unless this bill's print has already failed.
  void print(const std::vector<std::string>& lines);

  posMod& pos_;
  SaleState& state_;
  CashDrawer& drawer_;
  Outage outage_;
  std::vector<std::string> unsent_;  ///< lines that a failing printer has not taken yet
  std::int32_t failedBill_ = 0;      ///< number of the bill whose print failed, else 0
};
