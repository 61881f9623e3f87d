#pragma once

#include <map>
#include <string>

/// A till's day without end, in a process that is killed: sells, takes back, tops up, by the sale
/// library and without windows. What a customer was shown as paid is appended to the file `shown`,
/// each bill as its number and amount in a line.
[[noreturn]] void playSellingDay(const std::string& file, const std::string& shown, unsigned seed);

/// A till's start and nothing more.
void beginSellingDay(const std::string& file, const std::string& password);

/// One line of it. Throws std::runtime_error when it cannot be written.
void showBill(int paper, int number, const std::string& due);
/// The file that customers are shown bills in, opened to go on with.
int openShown(const std::string& shown);
/// What customers were shown, by the bill's number. Throws std::runtime_error when a number was
/// shown twice.
std::map<int, std::string> shownBills(const std::string& shown);
