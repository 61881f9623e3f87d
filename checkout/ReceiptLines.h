#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

class ClsMember;
class ClsSell;
class ClsSellItem;
class ClsSysParam;
struct Paper;

/// What a receipt tells of a bill beside the bill's own figures.
struct ReceiptFacts {
  std::string cashier;                      ///< the operator's receipt identifier
  std::shared_ptr<const ClsMember> member;  ///< attached to the bill, or none
  std::int64_t originalTotal = 0;           ///< original-price figure, in yuan
};

/// The texts of a receipt on a line printer, one per line and without line ends.

/// An empty line, the shop's name, the column titles.
std::vector<std::string> receiptHeading(const ClsSysParam& shop, const Paper& paper);
/// A figure is never cut: one too wide for its column takes room from the name.
std::string receiptLine(const ClsSellItem& line, const Paper& paper);
/// The footer down to the date; the drawer opens after it. The member's points are those before
/// the bill is credited.
std::vector<std::string> receiptTotals(const ClsSell& bill, const ReceiptFacts& facts,
                                       const ClsSysParam& shop, const Paper& paper);
/// The footer below it.
std::vector<std::string> receiptPayment(const ClsSell& bill, const ReceiptFacts& facts,
                                        const ClsSysParam& shop, const Paper& paper);
