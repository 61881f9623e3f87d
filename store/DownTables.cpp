#include "store/SchemaTexts.h"

// What came down to this till from the shop's server (sync/Download.h); a till of its own has no
// rows here.
const char* const kDownTables = R"(
create table down_place (              -- how far this till has what changed at the server
  one        integer primary key check (one = 1),
  generation text not null collate binary,  -- of the server; empty: everything is to be compared
  tx         text not null collate binary,
  tbl        text not null collate binary,
  key        text not null collate binary,
  walking    integer not null          -- everything is being compared; tbl and key say how far
);
create table down_others (             -- the part of stock and cards that is other tills'
  tbl    text not null,                -- stock, card
  key    text not null collate nocase,
  amount numeric not null,
  primary key (tbl, key)
) without rowid;
)";
