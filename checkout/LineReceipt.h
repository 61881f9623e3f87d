#pragma once

#include <cstdint>
#include <string>
#include <vector>

class ClsSell;
class ClsSellItem;
class ClsSysParam;
class Devices;
struct ReceiptFacts;

/// The receipt on a line printer, printed while the sale goes on; the port is opened for each
/// procedure and closed after it.
///
/// Nothing throws: a printer that fails is reported once per outage and the sale goes on. A failing
/// port can cost two seconds, so after a failure the bill's lines are kept and tried again with its
/// footer only, and a drawer on the same port is not tried then. When that fails too, the paper
/// starts again with the next bill's heading.
class LineReceipt {
 public:
  LineReceipt(const ClsSysParam& shop, Devices& devices) : shop_(shop), devices_(devices) {}

  /// Line printing as the devices have it: on with a line printer. Off before.
  void begin();
  bool isOn() const { return isOn_; }
  /// Switched by the cashier; stays off without a line printer.
  void toggle();

  /// The heading of the receipt for that bill. Only when line printing is on.
  void PrintHeader(const ClsSell& bill);
  /// A line of an open bill. Only when line printing is on.
  void PrintLine(const ClsSellItem& line);
  /// Totals and payment of the bill, and the heading of the next receipt; the drawer opens after
  /// the totals. Without line printing it only opens the drawer.
  void PrintFoot(const ClsSell& bill, const ReceiptFacts& facts);
  /// Two empty lines, so that a bill put aside stands apart. Only when line printing is on.
  void FeedLines(const ClsSell& bill);

 private:
  /// Prints what is unsent and these lines, unless this bill's print has already failed.
  void print(std::int32_t billNo, const std::vector<std::string>& lines);

  const ClsSysParam& shop_;
  Devices& devices_;
  bool isOn_ = false;
  std::vector<std::string> unsent_;  ///< lines that a failing printer has not taken yet
  std::int32_t failedBill_ = 0;      ///< number of the bill whose print failed, else 0
};
