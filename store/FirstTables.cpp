#include "store/SchemaTexts.h"

// Column types: TEXT and NUMERIC are the engine's; CURRENCY is a plain decimal number with up to
// four decimals; DATETIME is a text in storedText form. Text compares without regard to ASCII case,
// but for passwords.
const char* const kFirstTables = R"(
-- Barcode and price records. Looked up by barcode (sptm) at every scan.
create table tmda (
  id      integer primary key,
  sptm    text not null collate nocase,
  ggxh    text collate nocase,
  spbm    text not null collate nocase,
  spmc    text collate nocase,
  spcd    text collate nocase,
  jldw    text collate nocase,
  xsdj    currency,
  pfj     currency,
  zk      numeric,
  cxj     currency,
  kssj    datetime,
  jssj    datetime,
  dwbl    integer,
  zhjj    currency,
  splbmc  text collate nocase
);
create unique index tmda_key on tmda (sptm, spbm);
create index tmda_item on tmda (spbm);                  -- ClsStock: the name of refused goods

-- Goods master, one row per item code.
create table spda (
  id       integer primary key,
  f_spbm   text not null collate nocase,
  f_spmc   text collate nocase,
  f_sphh   text collate nocase,
  f_sptm   text collate nocase,
  f_Ggxh   text collate nocase,
  f_jldw   text collate nocase,
  f_xsdj   currency,
  f_pfj    currency,
  f_zk     numeric,
  f_zhjj   currency,
  f_spcd   text collate nocase,
  f_splbmc text collate nocase
);
create unique index spda_key on spda (f_spbm);

-- Fragments of goods texts (store/FragmentIndex.h). The rows' own id ties an index to its table: it
-- outlasts a VACUUM, which an unnamed row number does not. Only this program has the function
-- fragment_pieces, but no trigger calls it: whoever writes goods is only noted down. Nothing here
-- says "or ignore", because a conflict clause of the writer's statement would replace it.
create table tmda_written (id integer primary key, ggxh text collate nocase);
create table spda_written (
  id     integer primary key,
  f_sphh text collate nocase,
  f_Ggxh text collate nocase
);
create view tmda_indexed as
  select id as rowid, fragment_pieces(ggxh) as ggxh from tmda
    where id not in (select id from tmda_written)
  union all
  select id, fragment_pieces(ggxh) from tmda_written;
create view spda_indexed as
  select id as rowid, fragment_pieces(f_sphh) as f_sphh, fragment_pieces(f_Ggxh) as f_Ggxh
    from spda where id not in (select id from spda_written)
  union all
  select id, fragment_pieces(f_sphh), fragment_pieces(f_Ggxh) from spda_written;
create virtual table tmda_fragments using fts4 (
  ggxh, content="tmda_indexed", matchinfo=fts3, tokenize=simple
);
create virtual table spda_fragments using fts4 (
  f_sphh, f_Ggxh, content="spda_indexed", matchinfo=fts3, tokenize=simple
);

create trigger tmda_inserted after insert on tmda begin
  insert into tmda_written (id)
    select new.id where not exists (select 1 from tmda_written where id = new.id);
end;
create trigger tmda_updated after update of id, ggxh on tmda
  when new.id <> old.id or new.ggxh is not old.ggxh
begin
  insert into tmda_written (id, ggxh)
    select old.id, old.ggxh where not exists (select 1 from tmda_written where id = old.id);
  insert into tmda_written (id)
    select new.id where not exists (select 1 from tmda_written where id = new.id);
end;
create trigger tmda_deleted after delete on tmda begin
  insert into tmda_written (id, ggxh)
    select old.id, old.ggxh where not exists (select 1 from tmda_written where id = old.id);
end;
create trigger spda_inserted after insert on spda begin
  insert into spda_written (id)
    select new.id where not exists (select 1 from spda_written where id = new.id);
end;
create trigger spda_updated after update of id, f_sphh, f_Ggxh on spda
  when new.id <> old.id or new.f_sphh is not old.f_sphh or new.f_Ggxh is not old.f_Ggxh
begin
  insert into spda_written (id, f_sphh, f_Ggxh)
    select old.id, old.f_sphh, old.f_Ggxh
    where not exists (select 1 from spda_written where id = old.id);
  insert into spda_written (id)
    select new.id where not exists (select 1 from spda_written where id = new.id);
end;
create trigger spda_deleted after delete on spda begin
  insert into spda_written (id, f_sphh, f_Ggxh)
    select old.id, old.f_sphh, old.f_Ggxh
    where not exists (select 1 from spda_written where id = old.id);
end;

create table SP_LB (
  SPLB_ID integer primary key,
  SPLBMC  text not null collate nocase
);

-- Bills. state: 0 open, 1 settled. goods_amount is the sum of the lines before the shop's rounding,
-- amount what was due. paid marks an open bill whose payment was taken but which is not stored as
-- settled yet. Numbers of bills are never used twice.
create table sell (
  id           integer primary key autoincrement,
  sell_time    datetime not null,
  operator_id  integer not null,
  state        integer not null default 0,
  quantity     numeric not null default 0,
  goods_amount currency not null default 0,
  amount       currency not null default 0,
  cash         currency not null default 0,
  favorable    currency not null default 0,
  bank_card    currency not null default 0,
  card_pay     currency not null default 0,
  card_no      text not null default '' collate nocase,
  salesman     integer not null default 0,
  member_id    integer not null default 0,
  paid         integer not null default 0
);
-- ClsDayStat: an operator's bills of a day, and the open ones
create index sell_operator on sell (operator_id, state, sell_time);
create index sell_time on sell (sell_time);             -- ClsDayStat: the latest bill
create index sell_member on sell (member_id, id);       -- ClsSell: a member's latest bill
create index sell_paid on sell (id) where paid = 1;     -- ClsDayStat: paid, not yet settled

-- Bill lines. The columns from entry_code on are the library's own.
create table sellProducts (
  id          integer primary key autoincrement,
  sellId      integer not null,
  insert_Date datetime not null,
  bm          text not null collate nocase,
  name        text collate nocase,
  unit        text collate nocase,
  amount      numeric not null,
  price       currency not null,
  discount    numeric not null,
  money       currency not null,
  in_price    currency,
  splbmc      text collate nocase,
  entry_code  text not null default '' collate nocase,
  ratio       integer not null default 1,
  origin      text not null default '' collate nocase
);
create index sellProducts_bill on sellProducts (sellId);        -- a bill's lines
create index sellProducts_time on sellProducts (insert_Date);   -- the sales query's period

-- Members and their stored-value cards. discount is Null until a card class gave one.
create table member (
  id          integer primary key autoincrement,
  bh          text not null collate nocase,
  name        text not null default '' collate nocase,
  hyzklb      text collate nocase,
  card        currency not null default 0,
  password    text not null default '' collate binary,
  sex         text not null default '' collate nocase,
  age         integer not null default 0,
  phone       text not null default '' collate nocase,
  address     text not null default '' collate nocase,
  other       text not null default '' collate nocase,
  enabled     integer not null default 1,
  total_spent currency not null default 0,
  points      integer not null default 0,
  discount    numeric,
  birthday    datetime,
  join_date   datetime not null
);
create unique index member_key on member (bh);
create index member_phone on member (phone);

-- Top-ups of stored-value cards, one row each.
create table cardStored (
  id       integer primary key autoincrement,
  cardbh   text not null collate nocase,
  addmoney currency not null,
  inMoney  currency not null,
  commerce currency not null,
  bz       text collate nocase
);

-- Stock in stock units, rounded to six decimals.
create table stock (
  spbm     text not null primary key collate nocase,
  quantity numeric not null default 0
) without rowid;

-- Goods taken back.
create table un_sell (
  id          integer primary key autoincrement,
  un_time     datetime not null,
  sell_id     integer not null,
  item_id     integer not null,
  quantity    numeric not null,
  money       currency not null,
  cost        currency not null,
  ratio       integer not null,
  discount    numeric not null,
  operator_id integer not null
);
create index un_sell_item on un_sell (item_id);         -- what a line still holds

create table operators (
  id       integer primary key,
  name     text not null collate nocase,
  code     text not null collate nocase,
  password text not null collate binary,
  online   integer not null default 0
);
create table operator_rights (
  operator_id integer not null,
  right_key   text not null collate nocase,
  primary key (operator_id, right_key)
) without rowid;

-- Shop parameters by name; a name that is not set has its default.
create table sys_param (
  name  text not null primary key collate nocase,
  value text not null
) without rowid;
)";
