-- The shop's books at the server. Whoever owns them logs in nowhere; tills call the functions of the
-- schema api and see nothing else. Money is numeric(19,4), quantities numeric(18,6), as at the tills.
create schema shop;
create schema api;

create table shop.step (
  number integer primary key,
  taken  timestamptz not null default now()
);
create table shop.setting (
  name  text primary key,
  value text not null
);

create table shop.till (
  till         integer primary key check (till between 1 and 213),
  epoch        integer not null default 1,   -- which of the till's histories goes on
  applied      bigint not null default 0,    -- the last fact of it that is here
  hash         text not null default '',
  highest_bill bigint not null default 0,
  added        timestamptz not null default now(),
  code_until   timestamptz,                  -- a code to join with waits until then
  enrolled     timestamptz,
  revoked      timestamptz,
  last_contact timestamptz,
  told_pending bigint not null default 0,    -- bills that the till said were still to come
  told_clock   timestamptz,
  version      text not null default ''
);

-- A till's history forks where its file was put back from a copy, or made anew. All of it is kept.
create table shop.epoch (
  till       integer not null,
  epoch      integer not null,
  begun      timestamptz not null default now(),
  from_epoch integer not null,
  from_seq   bigint not null,
  from_hash  text not null,
  primary key (till, epoch)
);

-- What happened at the tills, as they sent it; never changed. What stands below can be made again
-- from it (shop.rebuild). `entry_till` is what the entry itself says, which its hash covers.
create table shop.fact (
  shop       integer not null default 1,
  till       integer not null,
  epoch      integer not null,
  seq        bigint not null,
  place      bigint generated always as identity,  -- in which order the server took them
  time       text not null,
  entry_till bigint not null,
  operator   bigint,
  approver   bigint,
  kind       text not null,
  touches    text not null,
  body       text not null,
  hash       text not null,
  received   timestamptz not null default now(),
  primary key (shop, till, epoch, seq)
);
create index fact_place on shop.fact (place);
create index fact_hash on shop.fact (till, seq, hash);
create function shop.refuse_change() returns trigger language plpgsql as $$
begin
  raise exception 'facts are never changed';
end $$;
create trigger fact_kept before update or delete or truncate on shop.fact
  for each statement execute function shop.refuse_change();

-- A fact that could not be read, or that the till does not send any more: nothing is refused for it.
create table shop.fault (
  at    timestamptz not null default now(),
  till  integer not null,
  epoch integer not null,
  seq   bigint not null,
  what  text not null
);

-- Bills as they were settled. The number of a till's bill is unique within an epoch.
create table shop.sale (
  till         integer not null,
  epoch        integer not null,
  bill         bigint not null,
  seq          bigint not null,
  sold_at      timestamp,
  operator     bigint,
  salesman     bigint,
  member       bigint,
  card         text,
  slip         text,
  quantity     numeric(18,6) not null,
  goods_amount numeric(19,4) not null,
  amount       numeric(19,4) not null,
  cash         numeric(19,4) not null,
  favorable    numeric(19,4) not null,
  bank_card    numeric(19,4) not null,
  phone_pay    numeric(19,4) not null,
  card_pay     numeric(19,4) not null,
  primary key (till, epoch, bill)
);
create index sale_sold_at on shop.sale (sold_at);
create table shop.sale_line (
  till     integer not null,
  epoch    integer not null,
  bill     bigint not null,
  line     bigint not null,
  item     text not null,
  name     text,
  unit     text,
  category text,
  quantity numeric(18,6) not null,
  ratio    numeric(18,6) not null,
  price    numeric(19,4) not null,
  discount numeric not null,
  money    numeric(19,4) not null,
  cost     numeric(19,4),
  primary key (till, epoch, bill, line)
);
create table shop.taken_back (
  till     integer not null,
  epoch    integer not null,
  id       bigint not null,
  seq      bigint not null,
  bill     bigint not null,
  line     bigint not null,
  item     text not null,
  taken_at timestamp,
  operator bigint,
  quantity numeric(18,6) not null,
  money    numeric(19,4) not null,
  primary key (till, epoch, id)
);

-- Stock is what was counted and what moved, never a sum that each sale writes. A till tells what it
-- counted in its own file; `told` is that less the till's movements until then. The first till that
-- tells of an item counts it for the shop, another one's first count is taken for a copy of the same
-- goods, and later ones count by what they changed: `counted` is what they add to the shop's stock.
-- Items are in lower case, as the tills compare them.
create table shop.stock_base (
  till    integer not null,
  item    text not null,
  told    numeric(18,6) not null,
  counted numeric(18,6) not null,
  primary key (till, item)
);
create index stock_base_item on shop.stock_base (item);
create table shop.movement (
  till     integer not null,
  epoch    integer not null,
  seq      bigint not null,
  line     bigint not null,
  item     text not null,
  quantity numeric(18,6) not null,
  primary key (till, epoch, seq, line)
);
create index movement_item on shop.movement (item) include (till, quantity);
create view shop.stock as
  select item, sum(quantity)::numeric(18,6) as quantity
  from (select item, counted as quantity from shop.stock_base
        union all select item, quantity from shop.movement) parts
  group by item;

-- Stored-value cards, the same way: what a till told a card to hold, and what was loaded and charged.
create table shop.card (
  till    integer not null,
  number  text not null,
  told    numeric(19,4) not null,
  counted numeric(19,4) not null,
  primary key (till, number)
);
create index card_number on shop.card (number);
create table shop.card_entry (
  till   integer not null,
  epoch  integer not null,
  seq    bigint not null,
  number text not null,
  amount numeric(19,4) not null,
  primary key (till, epoch, seq)
);
create index card_entry_number on shop.card_entry (number) include (till, amount);
create view shop.card_balance as
  select number, sum(amount)::numeric(19,4) as balance
  from (select number, counted as amount from shop.card
        union all select number, amount from shop.card_entry) parts
  group by number;
