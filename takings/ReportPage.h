#pragma once

#include <string_view>

/// The parts of a report's page that are the same for all, built into the program.

/// From the beginning into the head: what the page may load (nothing), its style.
extern const std::string_view kPageTop;
/// The chart library's file as its package has it, with its licence.
extern const std::string_view kChartLibrary;
/// Draws each of `charts` (takings/HtmlReport.cpp).
extern const std::string_view kPageScript;
