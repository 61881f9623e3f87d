#pragma once

class Connection;

/// While it lives, reads on the connection see the data file as it was at the first of them, and
/// lock the file once for all instead of once each (a third of what a small read costs). Nothing is
/// written meanwhile, and nobody is waited for: other programs' writes go on. Inside a transaction
/// it does nothing, since that has both already.
class Snapshot {
 public:
  /// Throws StoreError.
  explicit Snapshot(Connection& connection);
  ~Snapshot();
  Snapshot(const Snapshot&) = delete;
  Snapshot& operator=(const Snapshot&) = delete;

 private:
  Connection* connection_ = nullptr;  ///< none inside a transaction
};
