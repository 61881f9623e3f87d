#pragma once

/// Whether the test program was started with --long: more of the same for an hour when nobody
/// waits.
inline bool longRun = false;
