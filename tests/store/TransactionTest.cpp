#include "store/Transaction.h"

#include "StoreFixture.h"
#include "store/Snapshot.h"

class TransactionTest : public StoreFixture {
 protected:
  void put(const char* code) {
    connection->run("insert into stock (spbm, quantity) values (?, 1)", code);
  }
  static std::string codes(Connection& of) {
    return of.Open("select group_concat(spbm, '') as all_codes from stock")
        .row(0)
        .text("all_codes");
  }
  std::unique_ptr<Connection> other = openDataFile(source);
};

TEST_F(TransactionTest, KeepsWhatWasCommittedAtEveryLevelAndNothingElse) {
  for (const bool kept : {true, false}) {
    Transaction outer(*connection);
    put(kept ? "a" : "d");
    {
      Transaction inner(*connection);
      put("b");
    }
    {
      Transaction inner(*connection);
      put(kept ? "c" : "e");
      inner.commit();
    }
    EXPECT_EQ(codes(*other), kept ? "" : "ac") << "an inner commit must not reach the disk";
    if (kept) outer.commit();
  }
  EXPECT_EQ(codes(*connection) + codes(*other), "acac");
}

TEST_F(TransactionTest, IsRefusedWithATextWhileAnotherProgramWrites) {
  {
    Transaction writing(*other);
    EXPECT_THAT([&] { Transaction refused(*connection); }, refusal("另一个程序占用"));
  }
  Transaction afterwards(*connection);
  put("a");
  afterwards.commit();
  EXPECT_EQ(codes(*other), "a");
}

TEST_F(TransactionTest, WhatTheEngineTookBackByItselfIsNotHalfKept) {
  {
    Transaction outer(*connection);
    put("a");
    connection->runScript("rollback");  // as the engine does on a failing disk
    EXPECT_THAT([&] { put("b"); }, refusal("全部撤销")) << "would be a commit of its own";
    EXPECT_THAT([&] { outer.commit(); }, refusal("全部撤销"));
  }
  EXPECT_EQ(codes(*connection), "");
}

TEST_F(TransactionTest, ASnapshotStaysAsItIsAndHoldsNobodyUp) {
  put("a");
  {
    const Snapshot snapshot(*other);
    EXPECT_EQ(codes(*other), "a");
    put("b");
    EXPECT_EQ(codes(*other), "a");
  }
  EXPECT_EQ(codes(*other), "ab");
  Transaction writing(*connection);
  {
    const Snapshot within(*connection);
    put("c");
  }
  writing.commit();
  EXPECT_EQ(codes(*other), "abc");
}
