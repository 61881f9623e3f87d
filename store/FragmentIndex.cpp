#include "store/FragmentIndex.h"

#include <array>

#include "store/Connection.h"
#include "store/StoreError.h"
#include "store/Transaction.h"

namespace {

// A look-up reads every written row, at 2 µs each.
constexpr int kManyWritten = 100;

struct IndexStatements {
  const char* forget;  ///< takes the old texts of written rows out of the index
  const char* add;     ///< puts the written rows' texts in
  const char* clearWritten;
  const char* merge;  ///< some pages of pieces, from eight of a kind on
  const char* rebuild;
  const char* check;
  const char* countWritten;
};

constexpr std::array kIndexes = {
    IndexStatements{"delete from tmda_fragments where docid in"
                    " (select id from tmda_written where ggxh is not null)",
                    "insert into tmda_fragments (docid, ggxh)"
                    " select id, fragment_pieces(ggxh) from tmda"
                    " where id in (select id from tmda_written)",
                    "delete from tmda_written",
                    "insert into tmda_fragments (tmda_fragments) values ('merge=500,8')",
                    "insert into tmda_fragments (tmda_fragments) values ('rebuild')",
                    "insert into tmda_fragments (tmda_fragments) values ('integrity-check')",
                    "select count(*) as n from (select 1 from tmda_written limit ?)"},
    IndexStatements{"delete from spda_fragments where docid in (select id from spda_written"
                    " where f_sphh is not null or f_Ggxh is not null)",
                    "insert into spda_fragments (docid, f_sphh, f_Ggxh)"
                    " select id, fragment_pieces(f_sphh), fragment_pieces(f_Ggxh) from spda"
                    " where id in (select id from spda_written)",
                    "delete from spda_written",
                    "insert into spda_fragments (spda_fragments) values ('merge=500,8')",
                    "insert into spda_fragments (spda_fragments) values ('rebuild')",
                    "insert into spda_fragments (spda_fragments) values ('integrity-check')",
                    "select count(*) as n from (select 1 from spda_written limit ?)"},
};

bool areWritten(Connection& connection, const IndexStatements& index, int count) {
  Rows rows = connection.query(index.countWritten, count);
  return rows.next() && rows.whole("n") == count;
}

void update(Connection& connection, const IndexStatements& index) {
  Transaction transaction(connection);
  connection.run(index.forget);
  connection.run(index.add);
  connection.run(index.clearWritten);
  transaction.commit();
}

}  // namespace

void updateFragmentIndex(Connection& connection) {
  Transaction transaction(connection);
  for (const IndexStatements& index : kIndexes) update(connection, index);
  transaction.commit();
}

void updateFragmentIndexInSteps(Connection& connection) {
  Transaction transaction(connection);
  for (const IndexStatements& index : kIndexes) {
    if (!areWritten(connection, index, 1)) continue;
    update(connection, index);
    connection.run(index.merge);
  }
  transaction.commit();
}

void updateLongFragmentIndex(Connection& connection) {
  for (const IndexStatements& index : kIndexes) {
    if (areWritten(connection, index, kManyWritten)) update(connection, index);
  }
}

// The engine reports an index that differs from its view as a damaged file.
bool fragmentIndexIsRight(Connection& connection) {
  Transaction unwritten(connection);
  try {
    for (const IndexStatements& index : kIndexes) connection.run(index.check);
  } catch (const StoreError&) {
    return false;
  }
  return true;
}

// The view has every row's present text once the list of written rows is empty.
void rebuildFragmentIndex(Connection& connection) {
  Transaction transaction(connection);
  for (const IndexStatements& index : kIndexes) {
    connection.run(index.clearWritten);
    connection.run(index.rebuild);
  }
  transaction.commit();
}
