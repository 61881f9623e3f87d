#pragma once

class ClsSell;
class posMod;
class Messages;

/// Stores a bill whose payment was taken as settled and credits its member with purchase and
/// points, in one transaction. False when the store failed: nothing was written. A member that is
/// gone or cannot be credited costs points, not the sale.
[[nodiscard]] bool storeSettled(posMod& pos, ClsSell& bill);

/// Stores the bills as settled, of all operators, whose payment was taken by an earlier run of the
/// program that ended before it stored them; tells the cashier which. One that cannot be stored now
/// is told too and waits for the next opening. Throws StoreError when the bills cannot be read.
void completePaidBills(posMod& pos, Messages& screen);
