#include "store/SchemaTexts.h"

// Stored-value cards in a shop with a server (saleslib/CardPayment.h); a till of its own has no
// rows here.
const char* const kCardTables = R"(
create table card_pending (                       -- asked, and neither paid nor taken back yet
  key     text primary key collate binary,        -- under which the server knows the charge
  sell_id integer not null,
  card_no text not null collate nocase,
  amount  currency not null
);
create table card_offline (                       -- paid since the server last answered
  card_no text primary key collate nocase,
  amount  currency not null
);
)";
