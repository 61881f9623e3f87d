#include "store/Transaction.h"

#include "store/Connection.h"
#include "store/Engine.h"
#include "store/StoreError.h"

namespace {

constexpr int kOutermost = 1;

std::string savepoint(const char* command, int depth) {
  return command + (" level" + std::to_string(depth));
}

}  // namespace

// The outermost one takes the write lock at once: a transaction that reads first and is refused the
// lock later could only be repeated as a whole.
Transaction::Transaction(Connection& connection)
    : connection_(connection),
      depth_(connection.transactionDepth_ + 1),
      begin_(connection.writeMark()) {
  connection_.run(depth_ == kOutermost ? connection_.begin_
                                       : savepoint("savepoint", depth_).c_str());
  connection_.transactionDepth_ = depth_;
}

Transaction::~Transaction() {
  if (open_) takeBack();
}

void Transaction::commit() {
  ensure(open_, "a transaction is committed once");
  ensure(connection_.transactionDepth_ == depth_, "inner transactions end before outer ones");
  try {
    connection_.run(depth_ == kOutermost ? "commit" : savepoint("release", depth_).c_str());
  } catch (...) {
    takeBack();
    throw;
  }
  open_ = false;
  connection_.transactionDepth_ = depth_ - 1;
}

// A full disk or a failed write can make the engine take everything back by itself; then no level
// is left to be named. A failure here has no reader: nothing becomes durable without a commit.
void Transaction::takeBack() noexcept {
  ensure(connection_.transactionDepth_ == depth_, "inner transactions end before outer ones");
  open_ = false;
  connection_.transactionDepth_ = depth_ - 1;
  connection_.marks_.takeBackFrom(begin_);
  sqlite3* engine = connection_.engine_.get();
  if (sqlite3_get_autocommit(engine)) return;
  const std::string command =
      depth_ == kOutermost ? "rollback"
                           : savepoint("rollback to", depth_) + ";" + savepoint("release", depth_);
  sqlite3_exec(engine, command.c_str(), nullptr, nullptr, nullptr);
}
