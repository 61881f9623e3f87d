#pragma once

#include <string>

/// What the system's error numbers (errno) mean to the people in the shop. Nothing else words them.

/// Why a file could not be opened, made or written: a sentence for the shop's owner.
std::string fileFault(int errorNumber);

/// Why a device could not be used that is a file of that path: for the cashier, without a full
/// stop.
std::string deviceFault(int errorNumber, const std::string& path);
