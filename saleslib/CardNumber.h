#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "saleslib/Export.h"

/// Card numbers as they come from the keyboard or from the card reader, which types a track between
/// ";" and "?". Full-width characters are made half-width, blanks around are dropped.

/// A member's number.
TESSALY_API std::string memberNumber(std::string_view typed);
/// The number of a card that is to be topped up: what else the reader may type, small letters but
/// for h, is dropped too.
TESSALY_API std::string storedCardNumber(std::string_view typed);

/// The numbers under which a typed text is looked up, one after the other until there is such a
/// card: as it was typed, because a card's number may well hold what is cleaned away, then cleaned.
TESSALY_API std::vector<std::string> memberNumbers(std::string_view typed);
/// As memberNumbers, for a card that is to be topped up: at last without its small letters too.
TESSALY_API std::vector<std::string> storedCardNumbers(std::string_view typed);
/// As memberNumbers, for a card that pays: only a swiped track loses its small letters, so that
/// "vip10" is not the card 10.
TESSALY_API std::vector<std::string> payingCardNumbers(std::string_view typed);
