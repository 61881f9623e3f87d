#pragma once

class LineReceipt;
struct SaleState;

/// Commits the current line into the open bill: its row gets the line's id as tag, the line is
/// added to the bill and printed when line printing is on, and there is no current line any more.
/// When the cashier was still editing the line, the selection returns to the entry row; the caller
/// places the editor then.
void commitCurrentLine(SaleState& state, LineReceipt& receipt);
