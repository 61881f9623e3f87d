#include "store/Snapshot.h"

#include "store/Connection.h"
#include "store/Engine.h"

Snapshot::Snapshot(Connection& connection) {
  if (connection.transactionDepth_ > 0) return;
  connection.run("begin");
  connection_ = &connection;
}

// Ending a transaction that wrote nothing cannot fail.
Snapshot::~Snapshot() {
  if (connection_ == nullptr) return;
  sqlite3_exec(connection_->engine_.get(), "commit", nullptr, nullptr, nullptr);
}
