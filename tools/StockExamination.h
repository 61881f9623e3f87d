#pragma once

#include "tools/Examination.h"

class JournalState;

/// Holds the stock against what the journal's entries make it, less what open bills have taken.
void examineNotedStock(const Examination& books, const JournalState& state);
