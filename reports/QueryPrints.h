#pragma once

#include <string>
#include <vector>

#include "base/DateTime.h"
#include "platform/PagePrinter.h"

class ClsSysParam;
class ResultList;

/// Lines one below the other from the top left corner.
PageDocument pageOfLines(std::string name, const std::vector<std::string>& lines);

/// The result list as a narrow report. `start` and `end` are the period printed on it. The list is
/// complete.
PageDocument reportPage(const ResultList& list, const DateTime& start, const DateTime& end,
                        const DateTime& now);

/// The result list as a receipt printed again, with the shop's title and texts. `billNo` is the
/// text typed. The list is complete; its first row gives the time.
PageDocument reprintPage(const ResultList& list, const std::string& billNo, const ClsSysParam& shop,
                         const DateTime& now);
