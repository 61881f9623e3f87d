#pragma once

#include <optional>
#include <string>
#include <vector>

#include "base/Currency.h"
#include "saleslib/Tenders.h"

class ClsDayStat;

/// What many bills came to in one kind of payment. Figures of many bills name only the kinds that
/// the shop has turned on beside those of every shop (see optionalTenders).
struct TenderSum {
  const TenderKind* kind;
  std::optional<Currency> sum;  ///< nothing when it does not fit

  std::string text() const;  ///< "扫码 [88.50] 元"
};

std::vector<TenderSum> tenderSums(const ClsDayStat& day, const ClsSysParam& rules);
