#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <vector>

#include "store/DataSource.h"

class Connection;

/// Opens a shop's data file: write-ahead log, full durability, tables brought up to date in one
/// transaction. Throws StoreError with a text for the shop's owner when the file is missing, is no
/// data file or has another password, is locked, or was made by a newer version. Rights of others
/// on the files are taken away as far as they can be.
std::unique_ptr<Connection> openDataFile(const DataSource& source);

/// Makes a new data file, private (base/PrivateFile.h), and opens it; refuses one that exists. It
/// has its name only when its tables are made and `fill` has written what it holds from the
/// beginning: neither a failure nor a kill leaves anything behind. Throws Failure.
std::unique_ptr<Connection> createDataFile(
    const DataSource& source, const std::function<void(Connection&)>& fill = [](Connection&) {});

/// A new data file that never has a name, not even that of the source, in whose folder its room is
/// taken. It goes with its connection, even when the program is killed. Throws Failure.
std::unique_ptr<Connection> namelessDataFile(const DataSource& source);

/// A new data file for trying things out. It has no name and goes with its connection, even when
/// the program is killed; the folder is where its room is taken. Throws Failure.
std::unique_ptr<Connection> scratchDataFile(const std::filesystem::path& folder);

/// How much of a data file is read: each page and the tables' structure, or the indexes' entries
/// too.
enum class Soundness { kEveryPage, kEveryEntry };
/// Throws StoreError unless it is a shop's data file of a version that this program knows, and
/// sound. Changes nothing in it.
void requireSoundDataFile(const DataSource& source, Soundness depth);

/// Makes the data file and the files that stand beside it under its name (logs)
/// private. Gives those that others keep rights on.
std::vector<std::filesystem::path> protectDataFile(const std::filesystem::path& path);
