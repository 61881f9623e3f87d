#pragma once

#include <map>
#include <string>

/// A till's day without end, in a process that is killed: sells, takes back, tops up. What a
/// customer was shown as paid is appended to the file `shown`, each bill as its number and amount
/// in a line.
[[noreturn]] void playStormTill(const std::string& file, const std::string& shown, unsigned seed);

/// What customers were shown, by the bill's number. Throws std::runtime_error when a number was
/// shown twice.
std::map<int, std::string> shownBills(const std::string& shown);
