#pragma once

#include <QString>

#include "saleslib/Tenders.h"

/// What screens call a kind of payment. Papers and files have its name as it stands.
QString tenderName(const TenderKind& kind);
/// What screens call the code on its payer's slip; empty where there is none.
QString tenderSlipName(const TenderKind& kind);
