#pragma once

#include <string>

class ClsSell;
class posMod;
class SaleScreen;

/// Stock movements of the sale screen. A refusal is shown to the cashier, and the answer is false.

/// Takes a quantity (stock units) out of stock, under the shop's stock rule.
[[nodiscard]] bool TakeStock(posMod& pos, SaleScreen& screen, const std::string& itemCode,
                             double quantity);
/// Puts a quantity (stock units) back into stock.
[[nodiscard]] bool ReturnStock(posMod& pos, SaleScreen& screen, const std::string& itemCode,
                               double quantity);
/// Puts the stock of every line back and deletes the bill, in one transaction.
void VoidBill(posMod& pos, SaleScreen& screen, ClsSell& bill);
