#include "store/Transaction.h"

#include <gmock/gmock.h>

#include <memory>

#include "TemporaryFolder.h"
#include "store/Connection.h"
#include "store/DataFile.h"
#include "store/Snapshot.h"
#include "store/StoreError.h"

namespace {

class TransactionTest : public testing::Test {
 protected:
  TransactionTest() { connection_ = createDataFile(source_); }

  void put(const std::string& code) {
    connection_->run("insert into stock (spbm, quantity) values (?, 1)", code);
  }
  static std::string codes(Connection& connection) {
    std::string all;
    Rows rows = connection.query("select spbm from stock order by spbm");
    while (rows.next()) all += rows.text("spbm");
    return all;
  }

  TemporaryFolder folder_;
  DataSource source_{folder_.file("pos.mdb"), kBuiltInPassword};
  std::unique_ptr<Connection> connection_;
};

TEST_F(TransactionTest, KeepsWhatWasCommittedAtEveryLevelAndNothingElse) {
  {
    Transaction outer(*connection_);
    put("a");
    {
      Transaction inner(*connection_);
      put("b");
    }
    {
      Transaction inner(*connection_);
      put("c");
      inner.commit();
    }
    const auto reader = openDataFile(source_);
    EXPECT_EQ(codes(*reader), "") << "an inner commit must not reach the disk";
    outer.commit();
    EXPECT_EQ(codes(*reader), "ac");
  }
  {
    Transaction outer(*connection_);
    Transaction inner(*connection_);
    put("d");
    inner.commit();
  }
  EXPECT_EQ(codes(*connection_), "ac");
}

TEST_F(TransactionTest, IsRefusedWithATextWhileAnotherProgramWrites) {
  const auto other = openDataFile(source_);
  {
    Transaction writing(*other);
    EXPECT_THAT([&] { Transaction refused(*connection_); },
                testing::ThrowsMessage<StoreError>(testing::HasSubstr("另一个程序占用")));
  }
  Transaction afterwards(*connection_);
  put("a");
  afterwards.commit();
  EXPECT_EQ(codes(*connection_), "a");
}

TEST_F(TransactionTest, WhatTheEngineTookBackByItselfIsNotHalfKept) {
  {
    Transaction outer(*connection_);
    put("a");
    connection_->runScript("rollback");  // as the engine does on a failing disk
    const auto refusal = testing::ThrowsMessage<StoreError>(testing::HasSubstr("全部撤销"));
    EXPECT_THAT([&] { put("b"); }, refusal) << "would be a commit of its own";
    EXPECT_THAT([&] { outer.commit(); }, refusal);
  }
  EXPECT_EQ(codes(*connection_), "");
}

TEST_F(TransactionTest, ASnapshotStaysAsItIsAndHoldsNobodyUp) {
  Connection other(source_, Connection::Mode::kExisting);
  put("a");
  {
    const Snapshot snapshot(other);
    EXPECT_EQ(codes(other), "a");
    put("b");
    EXPECT_EQ(codes(other), "a");
  }
  EXPECT_EQ(codes(other), "ab");
  Transaction writing(*connection_);
  {
    const Snapshot within(*connection_);
    put("c");
  }
  writing.commit();
  EXPECT_EQ(codes(other), "abc");
}

}  // namespace
