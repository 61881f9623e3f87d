#pragma once

class LineReceipt;
struct SaleState;

/// Adds the current line to the open bill without printing it: its row gets the line's id as tag,
/// and there is no current line any more. When the cashier was still editing the line, the
/// selection returns to the entry row; the caller places the editor then.
void joinCurrentLine(SaleState& state);
/// The same, and the line is printed when line printing is on.
void commitCurrentLine(SaleState& state, LineReceipt& receipt);
