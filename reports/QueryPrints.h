#pragma once

#include <string>

#include "base/DateTime.h"
#include "devices/ReceiptPrinter.h"

class ClsSysParam;
class ResultList;

/// The result list as a narrow report. `start` and `end` are the period printed on it. The list is
/// complete.
LineDocument reportSheet(const ResultList& list, const DateTime& start, const DateTime& end,
                         const DateTime& now);

/// The result list as a receipt printed again, with the shop's title and texts. `billNo` is the
/// text typed. The list is complete; its first row gives the time.
PageDocument reprintPage(const ResultList& list, const std::string& billNo, const ClsSysParam& shop,
                         const DateTime& now);
