-- A till that holds a bill is called when another one wants it (NOTIFY), and need not ask all the
-- time. Whoever waits asks again and again: one call a second is enough.
alter table shop.held add column called timestamptz;  -- the till that has it

create or replace function api.want(asking integer, its_key text, holder integer, wanted bigint,
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
    if h.wanted_key is distinct from its_key or h.called is null or
       h.called < clock_timestamp() - interval '1 second' then
      update shop.held set called = clock_timestamp() where till = holder and bill = wanted;
      perform pg_notify('till_' || holder, '');
    end if;
  end if;
  update shop.till set last_contact = now() where till = t.till;
end $$;

-- What was given up to a till that cannot read it is not given to it again; it stays among the facts
-- of the till that gave it up, and is told as a fault.
alter function shop.apply(shop.fact) rename to apply_what_was_done;
create function shop.apply(f shop.fact) returns void language plpgsql as $$
declare
  body jsonb;
begin
  if f.kind <> 'bill_refused' then
    perform shop.apply_what_was_done(f);
    return;
  end if;
  body := f.body::jsonb;
  insert into shop.handed (to_till, key, received) values (f.till, body->>'key', true)
    on conflict (to_till, key) do update set received = true;
  insert into shop.fault (till, epoch, seq, what)
    values (f.till, f.epoch, f.seq, 'a held bill could not be taken in: ' || (body->>'reason'));
end $$;

revoke all on all functions in schema api, shop from public;
grant execute on all functions in schema api to tills;
revoke execute on function api.charge_for_shop, api.masters, api.keep_masters from tills;
