#pragma once

#include <optional>
#include <string>

/// What a whole number in the settings file means: an absent key, or a text that is no number, is
/// the default; an empty value is 0.
int settingNumber(const std::optional<std::string>& value, int defaultNumber);
