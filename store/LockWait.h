#pragma once

struct sqlite3;

/// From now on whoever finds the file locked by another program tries again every three
/// milliseconds, for two seconds: a cashier waits for another program no longer than this. The
/// engine's own way tries ever more seldom, and then misses the short pauses of a program that
/// writes much (shop/WriteSlices.h).
void waitForLocks(sqlite3* engine);
