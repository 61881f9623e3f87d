#pragma once

class LineReceipt;
struct SaleState;

/// Commits the current line into the open bill: its row gets the line's id as tag, the line is added
/// to the bill and printed when line printing is on, and there is no current line any more.
void commitCurrentLine(SaleState& state, LineReceipt& receipt);
