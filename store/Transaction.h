#pragma once

#include "store/WriteMarks.h"

class Connection;

/// What is written between its making and commit() is durable together or not at all. The end of
/// the scope without commit() takes everything back. Transactions nest: an inner one that is taken
/// back leaves the outer one's writes alone, and only the outermost commit() reaches the disk.
class Transaction {
 public:
  /// Throws StoreError, for example when another program holds the file for too long.
  explicit Transaction(Connection& connection);
  ~Transaction();
  Transaction(const Transaction&) = delete;
  Transaction& operator=(const Transaction&) = delete;

  /// Throws StoreError when the writes did not reach the disk; then they are taken back, and so is
  /// what the engine gave up by itself on a full or failing disk before.
  void commit();

 private:
  void takeBack() noexcept;

  Connection& connection_;
  int depth_;
  WriteMark begin_;
  bool open_ = true;
};
