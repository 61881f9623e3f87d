#pragma once

#include <string>

#include "saleslib/Export.h"

class Connection;

/// Passwords of stored-value cards. A till of its own keeps them as they are typed; in a shop with
/// a server, where members are at many places, they are salted hashes (libsodium's password
/// hashing, Argon2id, 8 MiB).

/// As this data file keeps it. An empty one stays empty. Throws StoreError.
std::string keptCardPassword(Connection& connection, const std::string& typed);
/// Whether that was typed of which the file keeps this.
[[nodiscard]] bool isCardPassword(const std::string& kept, const std::string& typed);
/// Makes hashes of all passwords that are none, some milliseconds each, and has the journal know
/// the members anew. In the caller's transaction; throws StoreError.
TESSALY_API void hashCardPasswords(Connection& connection);
