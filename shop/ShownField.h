#pragma once

#include <string>

struct Column;

/// What is wrong with a field that its column does not take, for the one who keeps the file.
std::string expectationMissed(const Column& column, const std::string& field);
/// The field as it may be shown: cut, and without control characters, which must not get at the
/// owner's terminal either.
std::string shownField(const std::string& field);
