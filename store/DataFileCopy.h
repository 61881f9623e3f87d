#pragma once

#include <filesystem>

class Connection;

/// Copies of a data file for safe keeping, readable by their owner only. A copy is written beside
/// its target and replaces it when it is whole, on the disk and verified; until then the target is
/// as it was. Throws StoreError.

/// Copies the file of an open connection as of its last commit, byte for byte; verified by opening
/// the copy and reading it whole. Other programs may have the file open too, but cannot write while
/// it is copied. Waits at most two seconds for one that reads. Not inside a transaction.
void copyDataFile(Connection& connection, const std::filesystem::path& target);

/// Copies what the file of an open connection holds, under its password, while another program goes
/// on writing: neither waits for the other, and the copy is one state of the file. Verified as
/// above.
void backUpDataFile(Connection& connection, const std::filesystem::path& target);

/// Copies a data file that this program has not opened, byte for byte; verified by comparing the
/// two, since its password is not known. Refuses one with a log beside it that holds
/// commits which the file itself does not have yet.
void copyClosedDataFile(const std::filesystem::path& source, const std::filesystem::path& target);
