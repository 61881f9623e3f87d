-- Bills that are put aside. Each is in one till's file alone, which says here what it holds; another
-- till that wants one asks, and the till that has it gives it up by an entry of its journal. From
-- then on it is the other till's, once: until an entry of that one says that it has it.
create table shop.held (
  till       integer not null,
  bill       bigint not null,
  basket     jsonb not null,
  wanted_by  integer,
  wanted_key text,
  wanted_at  timestamptz,
  primary key (till, bill)
);
create table shop.handed (
  to_till   integer not null,
  key       text not null,
  from_till integer,                       -- null: only its arrival is known
  bill      bigint,
  basket    jsonb,
  received  boolean not null default false,
  primary key (to_till, key)
);
create index handed_open on shop.handed (to_till) where not received;
create index handed_from on shop.handed (from_till, bill);

create function shop.apply_held(f shop.fact, body jsonb) returns void language plpgsql as $$
begin
  if f.kind = 'bill_released' then
    insert into shop.handed (to_till, key, from_till, bill, basket)
      values ((body->>'to')::integer, body->>'key', f.till, f.touches::bigint, body->'basket')
      on conflict (to_till, key) do update
        set from_till = excluded.from_till, bill = excluded.bill, basket = excluded.basket;
    delete from shop.held where till = f.till and bill = f.touches::bigint;
  else
    insert into shop.handed (to_till, key, received) values (f.till, body->>'key', true)
      on conflict (to_till, key) do update set received = true;
  end if;
end $$;

alter function shop.apply(shop.fact) rename to apply_returns;
create function shop.apply(f shop.fact) returns void language plpgsql as $$
begin
  if f.kind in ('bill_released', 'bill_received') then
    perform shop.apply_held(f, f.body::jsonb);
  else
    perform shop.apply_returns(f);
  end if;
end $$;

-- All that the asking till holds, by number. What it gave up before its file was put back from a copy
-- it does not hold.
create function api.hold(asking integer, baskets jsonb) returns void
language plpgsql security definer set search_path = shop, pg_temp as $$
declare
  t shop.till := shop.enrolled_caller(asking);
begin
  delete from shop.held h where h.till = t.till and not baskets ? h.bill::text;
  insert into shop.held (till, bill, basket)
    select t.till, b.key::bigint, b.value from jsonb_each(baskets) b
    on conflict (till, bill) do update set basket = excluded.basket;
  update shop.till set last_contact = now() where till = t.till;
end $$;

create function api.held_bills(asking integer)
returns table (at_till integer, bill bigint, basket text)
language plpgsql security definer set search_path = shop, pg_temp as $$
declare
  t shop.till := shop.enrolled_caller(asking);
begin
  return query select h.till, h.bill, h.basket::text from shop.held h
    join shop.till o on o.till = h.till and o.revoked is null
    where h.till <> t.till order by h.till, h.bill;
  update shop.till set last_contact = now() where till = t.till;
end $$;

-- The till that has it is asked for as long as somebody stands waiting; a wish that is older than
-- some seconds asks for nothing.
create function api.want(asking integer, its_key text, holder integer, wanted bigint,
                         out outcome text, out basket text)
language plpgsql security definer set search_path = shop, pg_temp as $$
declare
  t shop.till := shop.enrolled_caller(asking);
  given shop.handed;
  h shop.held;
begin
  -- in this order: what is given up meanwhile is seen as given
  select * into h from shop.held a where a.till = holder and a.bill = wanted for update;
  select * into given from shop.handed g where g.to_till = asking and g.key = its_key;
  if given.key is not null then
    outcome := case when given.received then 'gone' else 'handed' end;
    basket := given.basket::text;
  elsif h.till is null or
        (h.wanted_by <> asking and h.wanted_at > now() - interval '5 seconds') then
    outcome := 'gone';
  elsif (select o.last_contact from shop.till o where o.till = holder)
        < now() - interval '10 seconds' then
    outcome := 'away';
  else
    outcome := 'waiting';
    update shop.held set wanted_by = asking, wanted_key = its_key, wanted_at = clock_timestamp()
      where till = holder and bill = wanted;
  end if;
  update shop.till set last_contact = now() where till = t.till;
end $$;

-- What waits for the asking till: a bill that another one wants of it, one that it gave up already,
-- and a basket that was given up to it.
create function api.errands(asking integer)
returns table (what text, key text, other integer, bill bigint, basket text)
language plpgsql security definer set search_path = shop, pg_temp as $$
declare
  t shop.till := shop.enrolled_caller(asking);
begin
  return query
    select 'wanted', h.wanted_key, h.wanted_by, h.bill, null::text from shop.held h
      where h.till = t.till and h.wanted_at > now() - interval '5 seconds'
    union all
    select 'wanted', g.key, g.to_till, g.bill, null from shop.handed g
      join shop.held h on h.till = g.from_till and h.bill = g.bill and h.basket = g.basket
      where g.from_till = t.till
    union all
    select 'handed', g.key, g.from_till, g.bill, g.basket::text from shop.handed g
      where g.to_till = t.till and not g.received and g.basket is not null;
  update shop.till set last_contact = now() where till = t.till;
end $$;

revoke all on all functions in schema api, shop from public;
grant execute on all functions in schema api to tills;
