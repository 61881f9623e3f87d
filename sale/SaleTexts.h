#pragma once

#include <QString>
#include <string>
#include <vector>

#include "base/Currency.h"

class ClsMember;
class ClsSell;
class ClsSysParam;
struct SaleFigures;
struct StockOutcome;

/// What the sale screen says of the sale, in words.
namespace sale_texts {

/// Heading: bill number and cashier.
QString billTitle(const ClsSell& bill, const std::string& cashier);

/// Status line, after a line was rung or changed, or removed; after a bill was recalled. `due` is
/// the amount due after the shop's rounding.
QString rung(const SaleFigures& figures, const std::string& due);
QString removed(const ClsSell& bill, const SaleFigures& figures);
QString recalled(const ClsSell& bill);

/// The member's lines; `latest` is the member's last purchase, or none.
QString memberInfo(const ClsMember& member, const ClsSell* latest);

/// Why a movement of stock was refused.
QString refusal(const StockOutcome& outcome);

}  // namespace sale_texts
