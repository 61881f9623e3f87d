#pragma once

#include "takings/GoodsReading.h"
#include "takings/Report.h"

/// The report's sections about goods. Lists name `most` goods, and say how many there are.

GoodsByCode byCode(const Takings& takings);

ReportSection categorySection(const Takings& takings);
ReportSection goodsSection(TakingsSource& shop, const GoodsByCode& goods, std::size_t most);
ReportSection returnSection(TakingsSource& shop, const Takings& takings, std::size_t most);
ReportSection slowSection(const StockedList& slow, const Date& from, const Date& to);
ReportSection lowSection(const StockedList& low, double limit);
