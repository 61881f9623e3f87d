#pragma once

#include "tools/Console.h"

namespace CLI {
class App;
}

/// import FILE SHEET: brings a goods sheet into the shop (see importGoodsSheet, which `exitCode` is
/// from). import FILE --table T CSV: brings comma-separated rows into a table, all or nothing (see
/// Importer).
void addImportCommand(CLI::App& app, Console& console, int& exitCode);
