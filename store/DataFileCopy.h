#pragma once

#include <filesystem>

class Connection;

/// Copies of a data file for safe keeping: the same bytes, readable by their owner only. A copy is
/// written beside its target and replaces it when it is whole and on the disk; until then the
/// target is as it was. Throws StoreError.

/// Copies the file of an open connection as of its last commit; other programs may have it open
/// too. Waits at most two seconds for one that reads. Not inside a transaction.
void copyDataFile(Connection& connection, const std::filesystem::path& target);

/// Copies a data file that this program has not opened. Refuses one with a log beside it that holds
/// commits which the file itself does not have yet.
void copyClosedDataFile(const std::filesystem::path& source, const std::filesystem::path& target);
