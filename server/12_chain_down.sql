-- Goods, categories, prices, members and parameters come down from head office to its shops by
-- logical replication, and count there before what the shop's own office publishes; operators are
-- each shop's own affair. Head office has an office's file for all shops (0), and may have one for a
-- shop, whose rows count before those. What came from head office has a table of its own that
-- nothing else writes: so nothing here can stop the stream, and its triggers make changes of it.
create table shop.master (
  shop integer not null,                -- 0: all of them
  tbl  text collate "C" not null,
  key  text collate "C" not null,
  body jsonb not null,
  primary key (shop, tbl, key)
);
create index master_key on shop.master (tbl, key);
alter table shop.change add column head jsonb;  -- as head office has it; body counts

-- One row for each publishing at head office, and what a shop then has, so that one that was put
-- back, or missed something otherwise, notices.
create table shop.publishing (
  id    uuid primary key default gen_random_uuid(),
  shop  integer not null,
  at    timestamptz not null default now(),
  mark  text not null,
  place pg_lsn not null default pg_current_wal_insert_lsn()  -- of the server where the row is
);
create function shop.masters_mark(layer integer) returns text language sql stable as $$
  select count(*) || ':' || coalesce(sum(hashtextextended(row(tbl, key, body)::text, 0)::numeric), 0)
  from shop.master where shop = layer
$$;

-- What replication writes fires only triggers that say so.
alter table shop.change enable always trigger change_stamped;

create function shop.merge_master(its_tbl text, its_key text) returns void language plpgsql as $$
declare
  best jsonb := (select m.body from shop.master m
                 where (m.tbl, m.key) = (its_tbl, its_key) and m.shop in (0, shop.number())
                 order by m.shop desc limit 1);
begin
  update shop.change c set body = coalesce(best, c.published), head = best
    where (c.tbl, c.key) = (its_tbl, its_key) and c.head is distinct from best;
  if best is null then return; end if;
  insert into shop.change (tbl, key, body, head) values (its_tbl, its_key, best, best)
    on conflict on constraint change_pkey do nothing;
end $$;
create function shop.master_changed() returns trigger language plpgsql as $$
begin
  if tg_op = 'DELETE' then
    perform shop.merge_master(old.tbl, old.key);
  else
    perform shop.merge_master(new.tbl, new.key);
  end if;
  return null;
end $$;
create trigger master_merged after insert or update or delete on shop.master
  for each row execute function shop.master_changed();
alter table shop.master enable replica trigger master_merged;

-- What is not replicated comes in bulk.
create function shop.merge_masters() returns void language plpgsql as $$
begin
  create temporary table best on commit drop as
    select distinct on (tbl, key) tbl, key, body from shop.master
    where shop in (0, shop.number()) order by tbl, key, shop desc;
  analyze best;
  update shop.change c set body = coalesce(b.body, c.published), head = b.body
    from shop.change n left join best b using (tbl, key)
    where (n.tbl, n.key) = (c.tbl, c.key) and n.head is distinct from b.body;
  insert into shop.change (tbl, key, body, head) select tbl, key, body, body from best b
    where not exists (select from shop.change c where (c.tbl, c.key) = (b.tbl, b.key));
  drop table best;
end $$;

-- A row may come that was fetched before.
create function shop.master_comes() returns trigger language plpgsql as $$
begin
  update shop.master m set body = new.body
    where (m.shop, m.tbl, m.key) = (new.shop, new.tbl, new.key);
  return case when found then null else new end;
end $$;
create trigger master_known before insert on shop.master
  for each row execute function shop.master_comes();
alter table shop.master enable replica trigger master_known;

-- As before, but for what head office has: of that the shop's own row waits until it has it no more,
-- so it is noted as published before the others are looked at.
alter function shop.publish() rename to publish_rows;
create function shop.publish(out added bigint, out changed bigint, out removed bigint)
language plpgsql as $$
begin
  if shop.number() = 0 then
    select p.added, p.changed, p.removed into added, changed, removed from shop.publish_for(0) p;
    return;
  end if;
  update shop.change c set published = i.body
    from shop.change n left join incoming i using (tbl, key)
    where (n.tbl, n.key) = (c.tbl, c.key) and n.head is not null
      and n.published is distinct from i.body;
  select p.added, p.changed, p.removed into added, changed, removed from shop.publish_rows() p;
end $$;

-- At head office: what is in incoming, for that shop or (0) for all.
create function shop.publish_for(its_shop integer, out added bigint, out changed bigint,
                                 out removed bigint)
language plpgsql as $$
begin
  if shop.number() <> 0 then raise exception 'only head office publishes for shops'; end if;
  lock table shop.master in share row exclusive mode;
  delete from incoming where tbl like 'operator%';
  delete from shop.master m where m.shop = its_shop
    and not exists (select from incoming i where (i.tbl, i.key) = (m.tbl, m.key));
  get diagnostics removed = row_count;
  update shop.master m set body = i.body from incoming i
    where (m.shop, m.tbl, m.key) = (its_shop, i.tbl, i.key) and m.body <> i.body;
  get diagnostics changed = row_count;
  insert into shop.master (shop, tbl, key, body)
    select its_shop, tbl, key, body from incoming i
    where not exists (select from shop.master m
                      where (m.shop, m.tbl, m.key) = (its_shop, i.tbl, i.key));
  get diagnostics added = row_count;
  perform shop.merge_masters();
  insert into shop.publishing (shop, mark) values (its_shop, shop.masters_mark(its_shop));
end $$;

-- Of the tables that are published a till has no other rows, whoever published them.
alter function api.walk(integer, text, text, text, text, integer) rename to walk_rows;
alter function api.walk_rows(integer, text, text, text, text, integer) set schema shop;
create function api.walk(asking integer, its_generation text, its_tx text, its_tbl text,
                         its_key text, most integer,
                         out generation text, out horizon text, out changes jsonb, out whole jsonb)
language plpgsql security definer set search_path = shop, pg_temp as $$
begin
  select w.generation, w.horizon, w.changes, w.whole into generation, horizon, changes, whole
    from shop.walk_rows(asking, its_generation, its_tx, its_tbl, its_key, most) w;
  whole := whole || coalesce((select jsonb_agg(n.tbl) from
    (select m.tbl from unnest(array['SP_LB', 'spda', 'tmda']) as m(tbl)
     where not whole ? m.tbl
       and exists (select from shop.change c where c.tbl = m.tbl and c.head is not null)) n), '[]');
end $$;

-- Everything that head office has for this shop, which becomes all that came from there; how many
-- rows that changed.
create function shop.fetch_masters() returns bigint language plpgsql as $$
declare
  line text := (select value from shop.setting where name = 'head_office');
  changed bigint;
begin
  lock table shop.master in share row exclusive mode;
  with came as materialized (
    select * from chain.dblink(line, format('select * from api.masters(%s)', shop.number()))
      as m(shop integer, tbl text, key text, body jsonb)),
  gone as (
    delete from shop.master m
      where not exists (select from came c where (c.shop, c.tbl, c.key) = (m.shop, m.tbl, m.key))
      returning 1),
  kept as (
    insert into shop.master as known (shop, tbl, key, body) select * from came
      on conflict on constraint master_pkey do update set body = excluded.body
        where known.body <> excluded.body
      returning 1)
  select (select count(*) from gone) + (select count(*) from kept) into changed;
  perform shop.merge_masters();
  return changed;
end $$;
create function shop.publishing_came() returns trigger language plpgsql as $$
begin
  if new.mark <> shop.masters_mark(new.shop) then perform shop.fetch_masters(); end if;
  return null;
end $$;
create trigger publishing_checked after insert on shop.publishing
  for each row execute function shop.publishing_came();
alter table shop.publishing enable replica trigger publishing_checked;

-- What a shop may ask of head office: its rows, and that what is published from now on waits for it.
create function api.masters(its_shop integer)
returns table (shop integer, tbl text, key text, body jsonb)
language plpgsql security definer set search_path = shop, pg_temp as $$
begin
  if session_user <> 'shop_' || its_shop then
    raise exception using errcode = 'TL001', message = 'not this shop';
  end if;
  return query select m.shop, m.tbl, m.key, m.body from shop.master m
    where m.shop in (0, its_shop);
end $$;
-- By the shop's own rights, since keeping what is written for somebody is one.
create function api.keep_masters(its_shop integer) returns void language plpgsql as $$
declare
  its_name text := 'masters_' || its_shop;
  patience timestamptz := clock_timestamp() + interval '30 seconds';
begin
  if session_user <> 'shop_' || its_shop then
    raise exception using errcode = 'TL001', message = 'not this shop';
  end if;
  while exists (select from pg_replication_slots where slot_name = its_name) loop
    perform pg_terminate_backend(active_pid) from pg_replication_slots
      where slot_name = its_name and active;
    begin
      perform pg_drop_replication_slot(its_name);
    exception when object_in_use then
      if clock_timestamp() > patience then raise; end if;
      perform pg_sleep(0.05);
    end;
  end loop;
  perform pg_create_logical_replication_slot(its_name, 'pgoutput');
end $$;

-- A shop takes head office's masters, from the beginning or anew: after either server was put back
-- or changed for its second one, or when it was away for too long. By its superuser.
create function shop.follow_head_office() returns bigint language plpgsql as $$
declare
  line text := (select value from shop.setting where name = 'head_office');
  its_name text := 'masters_' || shop.number();
begin
  if line is null then raise exception 'this shop has no head office'; end if;
  if exists (select from pg_subscription s join pg_database d on d.oid = s.subdbid
             where s.subname = its_name and d.datname = current_database()) then
    execute format('alter subscription %I disable', its_name);
    execute format('alter subscription %I set (slot_name = none)', its_name);
    execute format('drop subscription %I', its_name);
  end if;
  perform * from chain.dblink(line, format('select api.keep_masters(%s)', shop.number()))
    as kept(nothing text);
  execute format('create subscription %I connection %L publication %I
                  with (create_slot = false, slot_name = %L, copy_data = false)',
                 its_name, line, its_name, its_name);
  return shop.fetch_masters();
end $$;

-- Head office lets a shop that it knows take its masters, by its superuser. Who may read a stream
-- could read whatever comes in here, of all shops.
create function shop.serve_shop(its_number integer) returns void language plpgsql as $$
declare
  its_name text := 'masters_' || its_number;
begin
  execute format('alter role %I replication', 'shop_' || its_number);
  grant execute on function api.masters, api.keep_masters to shops;
  if exists (select from pg_publication where pubname = its_name) then return; end if;
  execute format('create publication %I
    for table shop.master (shop, tbl, key, body) where (shop in (0, %s)),
              shop.publishing (id, shop, at, mark) where (shop in (0, %s))',
    its_name, its_number, its_number);
end $$;

-- At head office: which shops have all that was published for them.
create view shop.following as
  select substr(s.slot_name, 9)::integer as shop, s.active as connected,
         s.confirmed_flush_lsn >= coalesce(
           (select max(p.place) from shop.publishing p
            where p.shop in (0, substr(s.slot_name, 9)::integer)), '0/0') as has_all
  from pg_replication_slots s
  where s.database = current_database() and s.slot_name like 'masters\_%';

-- Bills' numbers repeat between shops.
create or replace view shop.line_back as
  select l.till, l.epoch, l.bill, l.line, sum(t.quantity) as quantity,
         l.money - round(l.price * (l.quantity - sum(t.quantity)) * l.discount, 2) as money
  from shop.taken_back t
  join shop.sale s on s.bill = t.bill and s.till / 1000 = t.till / 1000
  join shop.sale_line l on (l.till, l.epoch, l.bill, l.line) = (s.till, s.epoch, t.bill, t.line)
  group by l.till, l.epoch, l.bill, l.line;
create or replace view shop.returned as
  select t.till, t.seq, t.taken_at as un_time, t.operator as operator_id, t.item as bm, t.quantity,
         t.money, l.name, l.ratio
  from shop.taken_back t
  left join shop.sale s on s.bill = t.bill and s.till / 1000 = t.till / 1000
  left join shop.sale_line l on (l.till, l.epoch, l.bill, l.line) = (s.till, s.epoch, t.bill, t.line);
-- Head office has no tills to tell of stock and cards.
create or replace function shop.touch_stock() returns trigger language plpgsql as $$
begin
  insert into shop.touched select distinct till, 'stock', item from written
    where (select shop.number()) > 0;
  return null;
end $$;
create or replace function shop.touch_cards() returns trigger language plpgsql as $$
begin
  insert into shop.touched select distinct till, 'card', number from written
    where (select shop.number()) > 0;
  return null;
end $$;
drop index shop.taken_back_bill;  -- taken_back_line begins alike

revoke all on all functions in schema api, shop from public;
grant execute on all functions in schema api to tills;
revoke execute on function api.charge_for_shop, api.masters, api.keep_masters from tills;
