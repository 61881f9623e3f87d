#pragma once

class BillBooks;
class Messages;

/// Settles what an earlier run of the program left paid (see BillBooks::completePaid) and tells the
/// cashier which bills these are, and which of them have to wait.
void completePaidBills(BillBooks& books, Messages& screen);
