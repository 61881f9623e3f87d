#pragma once

#include <QString>
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

  /// For papers and files: "其中扫码 [88.50] 元".
  std::string printed() const;
  /// The same for screens, in their language: a sentence of tr() with the name as %1, the sum as
  /// %2.
  QString shown(const QString& sentence) const;
};

/// The sum for screens, or that it does not fit.
QString shownSum(const std::optional<Currency>& sum);

std::vector<TenderSum> tenderSums(const ClsDayStat& day, const ClsSysParam& rules);
