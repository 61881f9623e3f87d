#pragma once

/// What this process has asked the disk to make durable so far (fsync and fdatasync). The two calls
/// are wrapped for the whole program, so that the engine's are counted too.
struct Syncs {
  long all = 0;
  long dataFile = 0;  ///< the data file itself: each belongs to a copying of the log into it

  Syncs operator-(const Syncs& earlier) const {
    return {all - earlier.all, dataFile - earlier.dataFile};
  }
  Syncs& operator+=(const Syncs& more) {
    all += more.all;
    dataFile += more.dataFile;
    return *this;
  }
};

Syncs syncCount();
