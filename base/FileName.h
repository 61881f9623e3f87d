#pragma once

#include <filesystem>
#include <string_view>

/// The path as it stands on disk when each of its parts is looked up without regard to ASCII case
/// ("data/POS.mdb" finds "data/pos.mdb"); "\" separates folders too. An exact match wins, and parts
/// that are not there stay as written.
std::filesystem::path findIgnoringCase(std::string_view path);
