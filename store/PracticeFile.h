#pragma once

#include <filesystem>
#include <memory>

class Connection;

/// A data file to practise with: a shop's goods as they are at each moment, read where they lie and
/// never written, and beside them tables of its own for all that a till writes. These begin with
/// the shop's parameters, operators, members and stock; bills, returns and top-ups begin empty.
/// Under the shop's password, without a name, and gone with its connection, even when the program
/// is killed; `folder` is where its room is taken. Some 1.5 s for a million goods. Throws Failure.
std::unique_ptr<Connection> practiceDataFile(const Connection& shop,
                                             const std::filesystem::path& folder);
