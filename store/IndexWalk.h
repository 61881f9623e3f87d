#pragma once

#include <string>

/// How a query names a table whose rows it wants in the order of that index, walked along it until
/// enough are found. Left alone, the engine may rather sort all rows.
std::string walkedAlong(const char* table, const char* index);
