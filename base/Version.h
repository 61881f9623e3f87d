#pragma once

#include <string_view>

/// The version of the till, the same in all its programs: "1.0.0".
std::string_view tillVersion();
