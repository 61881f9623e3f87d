#include "store/SchemaTexts.h"

// What happened in the shop, in its order (saleslib/Journal.h): rows are added, numbered from 1
// without a gap, and stay as they are. Each has the hash of itself and of the one before.
const char* const kJournalTable = R"(
create table fact (
  seq      integer primary key,
  time     datetime not null,
  till     integer not null,
  operator integer,               -- 0: the owner's tool; Null: nobody was logged in
  approver integer,               -- Null: nobody was asked
  kind     text not null,
  touches  text not null,
  body     text not null,
  hash     text not null
);
create index fact_time on fact (time);                  -- the entries of a day
create trigger fact_changed before update on fact begin
  select raise(abort, 'entries of the journal are never changed');
end;
create trigger fact_deleted before delete on fact begin
  select raise(abort, 'entries of the journal are never deleted');
end;
)";
