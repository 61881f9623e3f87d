#pragma once

#include <string>

/// A cashier's day without end at the installed till of that program folder, by key events: rings,
/// settles in cash and by card, puts bills aside and takes them up again, takes goods back. The
/// process and the till are killed. What the settlement showed of bills that were then closed is
/// appended to the file `shown`, as playSellingDay does; if the till does what it should not, that
/// stands in "SHOWN.fault" and the process ends.
[[noreturn]] void playKeyedDay(const std::string& folder, const std::string& shown, unsigned seed);
