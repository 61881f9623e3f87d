#pragma once

#include <vector>

#include "base/DateTime.h"

/// Which dated backups there are to be: one a day of the newest seven days that have one, and of
/// what is older the last one of each week (from Monday), for the newest four weeks that have one.
/// Days and weeks are counted by the backups that are there, so that a clock that jumps ages none
/// of them. `existing` is in any order.

/// Whether the backup of today may be made, or made anew. Not when there is already one of today
/// and one of a later day too: the clock was put back, and today's may be an earlier one's.
[[nodiscard]] bool mayMakeGeneration(const std::vector<Date>& existing, const Date& today);

/// Those that are no longer to be kept when today's has just been made, newest first. Later ones
/// than today's are left alone and count for nothing.
[[nodiscard]] std::vector<Date> supersededGenerations(std::vector<Date> existing,
                                                      const Date& today);
