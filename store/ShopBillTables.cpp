#include "store/SchemaTexts.h"

// Bills that more than one till of a shop with a server has to do with (saleslib/BillAuthority.h);
// a till of its own has no rows here, and holds no bill beyond its program's end.
const char* const kShopBillTables = R"(
alter table sell add column held integer not null default 0;  -- put aside until it is taken up
create index sell_held on sell (id) where held = 1;
create table return_pending (                     -- asked, and neither done nor taken back yet
  key      text primary key collate binary,       -- under which the server knows the return
  sell_id  integer not null,
  item_id  integer not null,
  quantity numeric not null
);
create table return_elsewhere (                   -- goods of a return of another till's bill, whose
  un_sell integer primary key,                    -- item_id is 0
  line    integer not null,                       -- the line's key at its own till
  bm      text not null collate nocase,
  name    text not null collate nocase,
  price   currency not null
);
create table errand_done (                        -- what the server asked for, each thing once
  key    text primary key collate binary,
  result integer not null default 0
);
)";
