#pragma once

#include <string>
#include <string_view>

/// Card numbers as they come from the keyboard or from the card reader, which types a track between
/// ";" and "?". Full-width characters are made half-width, blanks around are dropped.

/// A member's number.
std::string memberNumber(std::string_view typed);
/// The number of a card that is to be topped up: what else the reader may type, small letters but
/// for h, is dropped too.
std::string storedCardNumber(std::string_view typed);
