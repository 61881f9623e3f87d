#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "base/Currency.h"
#include "checkout/Outage.h"
#include "checkout/ReceiptColumns.h"

class CashDrawer;
class ClsMember;
class ClsSell;
class ClsSellItem;
class posMod;

/// The receipt on a line printer, printed while the sale goes on. Texts are GBK on the wire, each
/// line followed by CR LF; the port is opened for each procedure and closed after it.
///
/// Nothing throws: a printer that fails is reported once per outage and the sale goes on. A failing
/// port can cost two seconds, so after a failure the bill's lines are kept and tried again with its
/// footer only, and a drawer on the same port is not tried then. When that fails too, the paper
/// starts again with the next bill's heading.
class LineReceipt {
 public:
  LineReceipt(posMod& pos, CashDrawer& drawer, Outage::Report report);

  /// Prints or not, and how wide, as the settings say.
  void start();
  /// Whether lines can be printed at all.
  bool isPossible() const;
  bool isOn() const { return isOn_; }
  void turn(bool on) { isOn_ = on && isPossible(); }
  const ReceiptColumns& widths() const { return widths_; }

  /// The heading of that bill's receipt. Only when line printing is on.
  void PrintHeader(const ClsSell& bill);
  /// A line of a bill. Only when line printing is on.
  void PrintLine(const ClsSellItem& line);
  /// Totals and payment of a bill with its original-price figure, and the heading of the next
  /// receipt; the drawer opens after the first two lines. Without line printing it only opens the
  /// drawer.
  void PrintFoot(const ClsSell& bill, const ClsMember* member, std::int64_t originalPrice);
  /// Two empty lines, so that a bill put aside stands apart. Only when line printing is on.
  void FeedLines(const ClsSell& bill);

 private:
  // The texts of these procedures, without line ends, for paper of those widths.
  std::vector<std::string> headerLines() const;
  std::string lineText(const ClsSellItem& line) const;
  /// Down to the date; the drawer opens after it.
  std::vector<std::string> totalLines(const ClsSell& bill, const ClsMember* member) const;
  /// Below it; empty texts are not printed.
  std::vector<std::string> paymentLines(const ClsSell& bill, std::int64_t originalPrice) const;
  /// Quantity and amount, each in its column with a blank before it; longer than the two columns
  /// when a figure needs it.
  std::string figures(double quantity, Currency amount) const;
  /// Columns that these figures leave of a line; none when they fill it.
  std::size_t roomBeside(const std::string& figures) const;
  /// Prints what is unsent and these lines, unless this bill's print has already failed.
  void print(std::int32_t billNo, const std::vector<std::string>& lines);

  posMod& pos_;
  bool isOn_ = false;
  ReceiptColumns widths_;
  CashDrawer& drawer_;
  Outage outage_;
  std::vector<std::string> unsent_;  ///< lines that a failing printer has not taken yet
  std::int32_t failedBill_ = 0;      ///< number of the bill whose print failed, else 0
};
