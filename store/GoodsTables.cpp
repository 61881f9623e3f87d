#include "store/SchemaTexts.h"

// A goods sheet on its way in (shop/GoodsStage.h): all of its rows, in runs sorted by key, and the
// mark that they are whole. And what the headings of people's sheets mean.
const char* const kGoodsTables = R"(
create table goods_in (
  id      integer primary key check (id = 1),
  token   integer not null,             -- whose sheet it is
  whole   integer not null default 0,
  staged  integer not null default 0,   -- rows
  written integer not null default 0
);
create table spda_in (
  run      integer not null,
  f_spbm   text not null collate nocase,
  f_spmc   text, f_sphh text, f_sptm text, f_Ggxh text, f_jldw text,
  f_xsdj   currency, f_pfj currency, f_zk numeric, f_zhjj currency, f_spcd text, f_splbmc text,
  primary key (run, f_spbm)
) without rowid;
create table tmda_in (
  run      integer not null,
  sptm     text not null collate nocase, spbm text not null collate nocase,
  ggxh     text, spmc text, spcd text, jldw text,
  xsdj     currency, pfj currency, zk numeric, cxj currency, kssj datetime, jssj datetime,
  dwbl     integer, zhjj currency, splbmc text,
  primary key (run, sptm, spbm)
) without rowid;
create table stock_in (
  run integer not null, spbm text not null collate nocase, quantity numeric not null,
  primary key (run, spbm)
) without rowid;
create table goods_mapping (
  id      integer primary key,
  name    text not null collate nocase,
  heading text not null,
  field   text not null                 -- a heading of the shop's own sheets, or empty: not read
);
create unique index goods_mapping_key on goods_mapping (name, heading);
-- What the engine keeps of a merging that goes on in steps.
insert into tmda_fragments (tmda_fragments) values ('automerge=0');
insert into spda_fragments (spda_fragments) values ('automerge=0');
)";
