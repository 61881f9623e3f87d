#pragma once

#include <functional>
#include <string>

class ClsSell;
class posMod;
class SaleScreen;

/// Stock movements of the sale screen. Each is one transaction with what `write` writes beside it
/// (the line's row); a refusal writes nothing, is shown to the cashier once the transaction is
/// over, and the answer is false.

/// Takes a quantity (stock units) out of stock, under the shop's stock rule.
[[nodiscard]] bool TakeStock(posMod& pos, SaleScreen& screen, const std::string& itemCode,
                             double quantity, const std::function<void()>& write);
/// Puts a quantity (stock units) back into stock.
[[nodiscard]] bool ReturnStock(posMod& pos, SaleScreen& screen, const std::string& itemCode,
                               double quantity, const std::function<void()>& write);
/// Puts the stock of every line back and deletes the bill, in one transaction.
void VoidBill(posMod& pos, SaleScreen& screen, ClsSell& bill);
