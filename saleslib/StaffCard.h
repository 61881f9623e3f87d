#pragma once

#include <cstdint>
#include <memory>
#include <string_view>

#include "saleslib/Export.h"

class ClsOperator;
class Connection;

/// Staff cards. Whoever swipes one is its holder, without a password; so a card is known only by
/// its whole track as the reader types it, between ";" and "?", and the data file has nothing but a
/// hash of that.

/// Whether a text is a swiped track: from ";" to "?", with something between; full-width characters
/// count as half-width ones.
TESSALY_API bool isSwipe(std::string_view typed);
/// The operator with that card; none when nobody has it. Throws StoreError.
TESSALY_API std::shared_ptr<ClsOperator> staffCardHolder(Connection& connection,
                                                         std::string_view typed);
/// Gives that operator the card, in the place of another one. False when it is somebody's already.
/// The text is a swiped one (ensure). Throws StoreError.
[[nodiscard]] TESSALY_API bool giveStaffCard(Connection& connection, std::int16_t operatorId,
                                             std::string_view typed);
/// The operator has no card any more. Throws StoreError.
TESSALY_API void takeStaffCard(Connection& connection, std::int16_t operatorId);
