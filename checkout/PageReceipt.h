#pragma once

#include <string>

#include "platform/PageDocument.h"

class ClsSell;
class ClsSysParam;
struct Paper;
struct ReceiptFacts;

/// The receipt of a settled bill for the page printer. `rowOption` is the setting of the lines'
/// layout: "打印商品前7个字简称", "打印编码+商品全称", "打印商品全称" or "打印商品全称+折扣"; with
/// any other text the lines are left out. The member's points are those after the bill. Throws
/// Overflow.
PageDocument pageReceipt(const ClsSell& bill, const ReceiptFacts& facts, const ClsSysParam& shop,
                         const Paper& paper, const std::string& rowOption);
