#pragma once

#include <filesystem>

class Connection;

/// Copies of an open data file for safe keeping, private (base/PrivateFile.h). A copy replaces its
/// target when it is whole, on the disk and verified by opening it and reading it whole; until then
/// the target is as it was. A file is not copied over itself. Throws Failure.

/// Byte for byte, as of the last commit; also of a file that has been deleted or replaced since it
/// was opened. Other programs cannot write while it is copied. Waits at most two seconds for one
/// that reads. Not inside a transaction.
void copyDataFile(Connection& connection, const std::filesystem::path& target);

/// What the file holds, under its password, while another program goes on writing: neither waits
/// for the other, and the copy is one state of the file.
void backUpDataFile(Connection& connection, const std::filesystem::path& target);
