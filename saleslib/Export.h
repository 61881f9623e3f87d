#pragma once

/// Marks what the shared library shows to programs; all else in it stays its own, the rooms below
/// that it is linked with too.
#define TESSALY_API __attribute__((visibility("default")))
