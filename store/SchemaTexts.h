#pragma once

/// The longer steps of the data file's tables (store/Schema.h).
extern const char* const kFirstTables;
extern const char* const kGoodsTables;
extern const char* const kJournalTable;
extern const char* const kShiftTables;
extern const char* const kLinkTable;
extern const char* const kCardTables;
extern const char* const kDownTables;
extern const char* const kShopBillTables;
