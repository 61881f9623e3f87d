#pragma once

#include <QString>

#include "saleslib/Right.h"

/// What screens say of what needs a right: "开钱箱", "打折和优惠 15%", "退货 200.00 元".
QString deedText(const Deed& deed);
/// The same of how far somebody may go: "10%", "200.00 元".
QString limitText(const RightKind& kind, Currency limit);
