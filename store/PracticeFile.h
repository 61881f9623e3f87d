#pragma once

#include <filesystem>
#include <memory>

class Connection;

/// A data file to practise with: a shop's goods as they are at each moment, read where they lie and
/// never written, and beside them tables of its own for all that a till writes. These begin with
/// the shop's parameters, operators, members and stock; bills, returns and top-ups begin empty, and
/// there is no journal. Under the shop's password, without a name, and gone with its connection,
/// even when the program is killed; `folder` is where its room is taken. Half a second of the
/// processor's time for a million goods, for the copy of their stock. Throws Failure.
std::unique_ptr<Connection> practiceDataFile(const Connection& shop,
                                             const std::filesystem::path& folder);
