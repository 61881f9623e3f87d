-- Shops of a chain and their head office, which has the same tables. Each shop's facts, and nothing
-- else, come to head office by logical replication, and the same functions make rows of them there,
-- where a till's number carries its shop's: shop x 1000 + till.

-- Which shop this is; head office is none of them. A shop has its number before its first fact.
create function shop.number() returns integer language sql stable as $$
  select coalesce((select value::integer from shop.setting where name = 'number'), 1)
$$;
create function shop.row_till(its_shop integer, till integer) returns integer language sql stable
as $$
  select case when shop.number() = 0 then its_shop * 1000 + till else till end
$$;
create function shop.be_number(its_number integer) returns void language plpgsql as $$
begin
  if exists (select from shop.fact where its_number > 0 and fact.shop <> its_number) or
     exists (select from shop.till where its_number = 0) then
    raise exception 'facts or tills of another shop are here';
  end if;
  insert into shop.setting values ('number', its_number)
    on conflict (name) do update set value = excluded.value;
  execute format('alter table shop.fact alter column shop set default %s', its_number);
end $$;

-- A shop's stock is its own also at head office; otherwise as before.
create or replace function shop.apply_stock(f shop.fact, body jsonb) returns void language sql as $$
  insert into shop.stock_base as base
    select f.till, told.item, told.quantity - moved.quantity,
           case when known.item is null then told.quantity - moved.quantity else 0 end
    from (select lower(key) as item, sum(shop.amount_of(value)) as quantity
          from jsonb_each_text(body->'stock') group by lower(key)) told
    cross join lateral (select coalesce(sum(m.quantity), 0) as quantity from shop.movement m
                        where m.item = told.item and m.till = f.till) moved
    left join lateral (select b.item from shop.stock_base b
                       where b.item = told.item and b.till / 1000 = f.till / 1000
                       limit 1) known on true
  on conflict (till, item) do update
    set counted = base.counted + excluded.told - base.told, told = excluded.told
$$;
create view shop.stock_by_shop as
  select shop, item, sum(quantity)::numeric(18,6) as quantity
  from (select till / 1000 as shop, item, counted as quantity from shop.stock_base
        union all select till / 1000, item, quantity from shop.movement) parts
  group by shop, item;

create or replace function shop.take(f shop.fact) returns void language plpgsql as $$
begin
  f.till := shop.row_till(f.shop, f.till);
  perform shop.apply(f);
exception when others then
  if left(sqlstate, 2) not in ('22', '23', '54') then raise; end if;
  insert into shop.fault (till, epoch, seq, what) values (f.till, f.epoch, f.seq, sqlerrm);
end $$;

-- The facts of one of a shop's tills between two of its numbers, both excluded, from the shop itself.
-- They come by dblink, over the line of the shop's subscription.
create function shop.fetch(its_shop integer, its_till integer, its_epoch integer, after bigint,
                           before bigint) returns bigint language plpgsql as $$
declare
  line text := (select subconninfo from pg_subscription where subname = 'shop_' || its_shop);
  last bigint := after;
  here bigint;
  there bigint;
  total bigint := 0;
begin
  loop
    with batch as materialized (
      select * from chain.dblink(line, format(
        'select shop, till, epoch, seq, time, entry_till, operator, approver, kind, touches, body,
                hash, received
         from shop.fact where (shop, till, epoch) = (%s, %s, %s) and seq > %s and seq < %s
         order by seq limit 5000', its_shop, its_till, its_epoch, last, before))
        as row(shop integer, till integer, epoch integer, seq bigint, time text,
               entry_till bigint, operator bigint, approver bigint, kind text, touches text,
               body text, hash text, received timestamptz)),
    kept as (
      insert into shop.fact (shop, till, epoch, seq, time, entry_till, operator, approver, kind,
                             touches, body, hash, received)
        select * from batch order by seq on conflict do nothing returning seq)
    select (select count(*) from kept), (select max(seq) from batch) into here, there;
    exit when there is null;
    total := total + here;
    last := there;
  end loop;
  return total;
end $$;

-- What comes from a shop: what is here already is passed over, so that a shop that was put back, or
-- whose facts were fetched, goes on. Facts have no gaps: where some are missing before one, head
-- office was put back, and they are fetched first.
create function shop.receive() returns trigger language plpgsql as $$
declare
  known text := (select hash from shop.fact f
                 where (f.shop, f.till, f.epoch, f.seq) = (new.shop, new.till, new.epoch, new.seq));
  last bigint := coalesce((select max(seq) from shop.fact f
                           where (f.shop, f.till, f.epoch) = (new.shop, new.till, new.epoch)), 0);
begin
  if known is not null then
    if known <> new.hash then
      insert into shop.fault (till, epoch, seq, what)
        values (shop.row_till(new.shop, new.till), new.epoch, new.seq,
                'another fact of this number is here');
    end if;
    return null;
  end if;
  if last + 1 < new.seq and pg_trigger_depth() = 1 then
    perform shop.fetch(new.shop, new.till, new.epoch, last, new.seq);
  end if;
  return new;
end $$;
create function shop.make_rows() returns trigger language plpgsql as $$
begin
  if new.kind ~ '^(books|stock|member)' then perform shop.in_turn(); end if;
  perform shop.take(new);
  return null;
end $$;
create trigger fact_comes before insert on shop.fact
  for each row execute function shop.receive();
create trigger fact_came after insert on shop.fact
  for each row execute function shop.make_rows();
-- Only what is replicated has them; tills bring theirs by api.put.
alter table shop.fact enable replica trigger fact_comes;
alter table shop.fact enable replica trigger fact_came;

-- What head office lacks of a shop, till by till; none where all is here. By its superuser, as all
-- that follows.
create function shop.missing(its_shop integer)
returns table (till integer, epoch integer, first bigint, here bigint, there bigint)
language plpgsql as $$
begin
  return query
    select t.till, t.epoch, t.first, h.facts, t.facts
    from chain.dblink((select subconninfo from pg_subscription where subname = 'shop_' || its_shop),
                      'select till, epoch, min(seq), max(seq), count(*) from shop.fact
                       group by till, epoch')
         as t(till integer, epoch integer, first bigint, last bigint, facts bigint)
    cross join lateral (select count(*) as facts from shop.fact f
                        where (f.shop, f.till, f.epoch) = (its_shop, t.till, t.epoch)
                          and f.seq <= t.last) h
    where h.facts < t.facts;
end $$;
-- Fetches it, each till's from its first gap on; how many facts that was.
create function shop.fill(its_shop integer) returns bigint language plpgsql as $$
declare
  total bigint := 0;
  complete bigint;
  each record;
begin
  perform set_config('session_replication_role', 'replica', true);
  for each in select * from shop.missing(its_shop) loop
    select min(f.seq) into complete from shop.fact f
      where (f.shop, f.till, f.epoch) = (its_shop, each.till, each.epoch)
        and exists (select from shop.fact b
                    where (b.shop, b.till, b.epoch, b.seq) =
                          (f.shop, f.till, f.epoch, each.first))
        and not exists (select from shop.fact n
                        where (n.shop, n.till, n.epoch, n.seq) =
                              (f.shop, f.till, f.epoch, f.seq + 1));
    total := total + shop.fetch(its_shop, each.till, each.epoch,
                                coalesce(complete, each.first - 1), 9223372036854775807);
  end loop;
  perform set_config('session_replication_role', 'origin', true);
  return total;
end $$;

-- Where a till's history goes on from another one of its own: as the server decided, and at head
-- office as the facts themselves tell.
create view shop.fork as
  select till, epoch, from_seq, from_hash from shop.epoch
  union all
  select shop.row_till(first.shop, first.till), first.epoch, first.seq - 1, before.hash
  from (select shop, till, epoch, min(seq) as seq from shop.fact
        where epoch > 1 and shop.number() = 0 group by shop, till, epoch) first
  cross join lateral (select f.hash from shop.fact f
                      where f.shop = first.shop and f.till = first.till and f.epoch < first.epoch
                        and f.seq = first.seq - 1 order by f.epoch desc limit 1) before;

-- A shop joins, by its superuser: `line` is the way to head office, with the password that head
-- office comes with, too.
create function shop.join_chain(its_number integer, line text, password text) returns void
language plpgsql as $$
begin
  if its_number not between 1 and 2000 then raise exception 'shops are numbered from 1'; end if;
  perform shop.be_number(its_number);
  perform shop.make_chain_role('head_office', password);
  alter role head_office replication;
  grant usage on schema shop to head_office;
  grant select on shop.fact to head_office;
  create publication shop_facts
    for table shop.fact (shop, till, epoch, seq, time, entry_till, operator, approver, kind,
                         touches, body, hash, received) with (publish = 'insert');
  insert into shop.setting values ('head_office', line || ' password=' || quote_literal(password))
    on conflict (name) do update set value = excluded.value;
  -- Who asks for a card gives up after 2 s; so does what works for him.
  execute format('alter database %I set client_connection_check_interval = 500',
                 current_database());
end $$;
-- Head office lets a shop ask; 0 is its own number. Its subscription is made behind this.
create function shop.add_shop(its_number integer, password text) returns void language plpgsql as $$
begin
  perform shop.be_number(0);
  perform shop.make_chain_role('shop_' || its_number, password);
  grant usage on schema api to shops;
  execute format('grant shops to %I', 'shop_' || its_number);
end $$;
create function shop.make_chain_role(its_name text, password text) returns void language plpgsql
set client_min_messages = warning as $$
begin
  create schema if not exists chain;
  create extension if not exists dblink schema chain;
  grant usage on schema chain to shop_keeper;
  if not exists (select from pg_roles where rolname = 'shops') then create role shops; end if;
  grant execute on function api.charge_for_shop to shops;
  if not exists (select from pg_roles where rolname = its_name) then
    execute format('create role %I', its_name);
  end if;
  execute format('alter role %I login password %L', its_name, password);
  execute format('grant connect on database %I to %I', current_database(), its_name);
end $$;

revoke all on all functions in schema api, shop from public;
