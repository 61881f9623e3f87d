#pragma once

#include "base/Words.h"
#include "saleslib/Export.h"

/// Words::speak for the texts of this library, which has its own copy of the rooms below it.
TESSALY_API void speakInSaleLibrary(Words::Catalogue catalogue);
