#pragma once

#include <filesystem>

#include "base/DateTime.h"
#include "bench/ShopSize.h"

/// The data file of a measured shop: its goods (bench/Goods.h), each with a price, a barcode and
/// stock; a thousand members; one cashier; ten years of settled bills of five lines, each line at
/// 2.50, spread evenly over the first kHistoryDays, and a busy last day.
namespace shop_file {

inline constexpr Date kFirstDay = {2014, 1, 1};
inline constexpr int kHistoryDays = 3652;
inline constexpr Date kBusyDay = {2024, 1, 2};
inline constexpr int kBusyBills = 2000;
inline constexpr int kLinesPerBill = 5;
inline constexpr int kMembers = 1000;

/// Logs in with this number and an empty password.
inline constexpr int kCashier = 1;
/// "M0" to "M999"
std::string memberNumber(int member);

/// Makes the file; a million goods and ten million lines take minutes.
void make(const std::filesystem::path& file, ShopSize size);
/// Changes with everything that decides what is in such a file.
std::string version();

}  // namespace shop_file
