-- Goods that come back. Who may lower a line of a bill that is here must be one: a till asks under a
-- key that it made and stored before, so that a return is done once however often it is asked for.
-- What a till took back proves its return; what it gave up is undone once, or kept from being done
-- when it is still on its way. The number of a bill says whose it is.
create table shop.return_asked (
  till     integer not null,            -- who takes the goods back
  key      text not null,
  bill     bigint not null,
  line     bigint not null,
  quantity numeric(18,6) not null,
  state    text not null check (state in ('open', 'settled', 'voided')),
  asked    timestamptz,                 -- when it was done here; null: not before the till did it
  told     bigint,                      -- the entry by which the bill's own till said that it knows
  seller   integer not null generated always as (bill / 10000000) stored,
  primary key (till, key)
);
create index return_asked_line on shop.return_asked (bill, line) where state = 'open';
create index return_asked_untold on shop.return_asked (seller)
  where state = 'settled' and told is null and seller <> till;
create index taken_back_line on shop.taken_back (bill, line);

-- Of the last of the bill's histories; null for a line that is not here.
create function shop.line_holds(of_bill bigint, of_line bigint) returns numeric language sql as $$
  select s.quantity
    - (select coalesce(sum(b.quantity), 0) from shop.taken_back b
       where b.bill = of_bill and b.line = of_line)
    - (select coalesce(sum(a.quantity), 0) from shop.return_asked a
       where a.bill = of_bill and a.line = of_line and a.state = 'open')
  from shop.sale_line s
  where s.till = of_bill / 10000000 and s.bill = of_bill and s.line = of_line
  order by s.epoch desc limit 1
$$;

-- The line of another till's bill stands beside the record, which knows only the till's own ones.
create or replace function shop.apply_return(f shop.fact, body jsonb) returns void
language plpgsql as $$
declare
  r jsonb := body->'return';
  of_line bigint := coalesce(r->>'item_id', body->>'of_line')::bigint;
begin
  insert into shop.taken_back values (
    f.till, f.epoch, (r->>'id')::bigint, f.seq, (r->>'sell_id')::bigint, of_line,
    body->>'item', (r->>'un_time')::timestamp, (r->>'operator_id')::bigint,
    shop.amount_of(r->>'quantity'), shop.amount_of(r->>'money'));
  insert into shop.movement values (
    f.till, f.epoch, f.seq, 0, lower(body->>'item'),
    shop.amount_of(r->>'quantity') * shop.amount_of(r->>'ratio'));
  insert into shop.return_asked (till, key, bill, line, quantity, state)
    select f.till, body->>'key', (r->>'sell_id')::bigint, of_line,
           shop.amount_of(r->>'quantity'), 'settled'
    where body->>'key' is not null
  on conflict (till, key) do update set state = 'settled', quantity = excluded.quantity;
end $$;

create function shop.void_return(f shop.fact, back jsonb) returns void language sql as $$
  insert into shop.return_asked as known (till, key, bill, line, quantity, state)
    values (f.till, back->>'key', (back->>'bill')::bigint, (back->>'line')::bigint,
            shop.amount_of(back->>'quantity'), 'voided')
  on conflict (till, key) do update set state = 'voided' where known.state = 'open'
$$;

alter function shop.apply(shop.fact) rename to apply_sale;
create function shop.apply(f shop.fact) returns void language plpgsql as $$
begin
  case f.kind
    when 'return_voided' then perform shop.void_return(f, f.body::jsonb->'back');
    when 'returned_elsewhere' then
      update shop.return_asked set told = f.seq
      where till = (f.body::jsonb->'elsewhere'->>'till')::integer
        and key = f.body::jsonb->'elsewhere'->>'key';
    else perform shop.apply_sale(f);
  end case;
end $$;

-- A till that begins anew may have forgotten what it asked for and what it was told.
create function shop.void_forgotten_returns() returns trigger language plpgsql as $$
begin
  update shop.return_asked set state = 'voided' where till = new.till and state = 'open';
  if old.epoch <> new.epoch then
    update shop.return_asked set told = null where seller = new.till and told > new.applied;
  end if;
  return null;
end $$;
create trigger till_begins_returns_anew after update of epoch, enrolled on shop.till
  for each row when (old.epoch <> new.epoch or old.enrolled is distinct from new.enrolled)
  execute function shop.void_forgotten_returns();

-- A settled bill as its till noted it, and what each of its lines still holds; null when it is not
-- here.
create function api.bill(asking integer, wanted bigint, out record text, out holds jsonb)
language plpgsql security definer set search_path = shop, pg_temp as $$
declare
  t shop.till := shop.enrolled_caller(asking);
  s shop.sale;
begin
  select * into s from shop.sale where till = wanted / 10000000 and bill = wanted
    order by epoch desc limit 1;
  select f.body into record from shop.fact f
    where f.till = s.till and f.epoch = s.epoch and f.seq = s.seq;
  select jsonb_object_agg(l.line, trim_scale(shop.line_holds(l.bill, l.line))::text) into holds
    from shop.sale_line l where l.till = s.till and l.epoch = s.epoch and l.bill = s.bill;
  update shop.till set last_contact = now() where till = t.till;
end $$;

-- Takes so much off what the line holds, or nothing. A bill of the asking till that is still to come
-- is its own affair: what is taken now is off it when it comes. Returns of one line take turns.
create function api.return_line(asking integer, its_key text, of_bill bigint, of_line bigint,
                                wanted numeric, out outcome text, out holds numeric)
language plpgsql security definer set search_path = shop, pg_temp as $$
declare
  t shop.till := shop.enrolled_caller(asking);
  known shop.return_asked;
begin
  if wanted <= 0 or its_key = '' then
    raise exception using errcode = 'TL006', message = 'no return';
  end if;
  perform pg_advisory_xact_lock(8407103, hashtext(of_bill || ':' || of_line));
  select * into known from shop.return_asked a where a.till = asking and a.key = its_key;
  holds := shop.line_holds(of_bill, of_line);
  if known.key is not null then
    outcome := case known.state when 'voided' then 'voided' else 'done' end;
  elsif holds is null and of_bill / 10000000 <> asking then
    outcome := 'unknown_bill';
  elsif holds < wanted then
    outcome := 'too_much';
  else
    outcome := 'done';
    insert into shop.return_asked (till, key, bill, line, quantity, state, asked)
      values (asking, its_key, of_bill, of_line, wanted, 'open', now());
  end if;
  update shop.till set last_contact = now() where till = t.till;
end $$;

-- What other tills took back of the asking till's bills, until an entry of its says that it knows.
create function api.returned_elsewhere(asking integer)
returns table (key text, at_till integer, bill bigint, line bigint, quantity numeric)
language plpgsql security definer set search_path = shop, pg_temp as $$
declare
  t shop.till := shop.enrolled_caller(asking);
begin
  return query select a.key, a.till, a.bill, a.line, trim_scale(a.quantity)
    from shop.return_asked a
    where a.seller = t.till and a.till <> t.till and a.state = 'settled' and a.told is null
    order by a.till, a.key limit 50;
  update shop.till set last_contact = now() where till = t.till;
end $$;

revoke all on all functions in schema api, shop from public;
grant execute on all functions in schema api to tills;
