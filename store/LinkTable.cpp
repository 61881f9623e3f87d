#include "store/SchemaTexts.h"

// How this till belongs to a shop with a server (saleslib/ShopLink.h): one row, or none in a till
// of its own.
const char* const kLinkTable = R"(
create table link (
  one       integer primary key check (one = 1),
  till      integer not null,                 -- the till's number in the shop
  epoch     integer not null,                 -- of its history (sync/Handshake.h)
  host      text not null collate binary,     -- a folder for a server on this machine
  port      integer not null,
  database  text not null collate binary,
  password  text not null collate binary,
  authority text not null collate binary      -- the certificate that vouches for the server (PEM)
);
)";
