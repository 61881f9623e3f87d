-- Charges of stored-value cards. A till asks under a key that it made and stored before, so that a
-- charge is done once however often it is asked for. What a till settled proves its charge, also one
-- that the server never heard of or forgot: the goods are gone. What a till gave up is taken back
-- once, or kept from being done when it is still on its way.
create table shop.charge (
  till   integer not null,
  key    text not null,
  number text not null,
  amount numeric(19,4) not null,
  state  text not null check (state in ('open', 'settled', 'voided')),
  asked  timestamptz,           -- when it was done here; null: not before the till settled it
  primary key (till, key)
);
create index charge_open on shop.charge (number) include (amount) where state = 'open';

-- An open charge counts here; a settled one is an entry, which the fact made.
create or replace view shop.card_balance as
  select number, sum(amount)::numeric(19,4) as balance
  from (select number, counted as amount from shop.card
        union all select number, amount from shop.card_entry
        union all select number, -amount from shop.charge where state = 'open') parts
  group by number;

create function shop.settle_charge(f shop.fact, card jsonb) returns void language sql as $$
  insert into shop.charge (till, key, number, amount, state)
    select f.till, card->>'key', lower(card->>'number'), -shop.amount_of(card->>'by'), 'settled'
    where card->>'key' is not null
  on conflict (till, key) do update set state = 'settled'
$$;

create function shop.void_charge(f shop.fact, charge jsonb) returns void language sql as $$
  insert into shop.charge as known (till, key, number, amount, state)
    values (f.till, charge->>'key', lower(charge->>'number'), shop.amount_of(charge->>'amount'),
            'voided')
  on conflict (till, key) do update set state = 'voided' where known.state = 'open'
$$;

-- A till that begins anew may have forgotten what it asked for. If it has not, settling proves it.
create function shop.void_forgotten() returns trigger language plpgsql as $$
begin
  update shop.charge set state = 'voided' where till = new.till and state = 'open';
  return null;
end $$;
create trigger till_begins_anew after update of epoch, enrolled on shop.till
  for each row when (old.epoch <> new.epoch or old.enrolled is distinct from new.enrolled)
  execute function shop.void_forgotten();

-- Takes the amount from the card if it holds that much. The till asks its cashier for the password:
-- it has the card's owner, and could tell of any charge as settled. Charges of one card take turns.
create function api.charge(asking integer, its_key text, card text, due numeric,
                           out outcome text, out balance numeric)
language plpgsql security definer set search_path = shop, pg_temp as $$
declare
  t shop.till := shop.enrolled_caller(asking);
  known shop.charge;
begin
  if due < 0 or its_key = '' then
    raise exception using errcode = 'TL006', message = 'no charge';
  end if;
  perform pg_advisory_xact_lock(8407102, hashtext(lower(card)));
  select * into known from shop.charge c where c.till = asking and c.key = its_key;
  select b.balance into balance from shop.card_balance b where b.number = lower(card);
  if known.key is not null then
    outcome := case known.state when 'voided' then 'voided' else 'done' end;
  elsif balance is null then
    outcome := 'unknown_card';
  elsif balance < due then
    outcome := 'too_little';
  else
    outcome := 'done';
    balance := balance - due;
    insert into shop.charge (till, key, number, amount, state, asked)
      values (asking, its_key, lower(card), due, 'open', now());
  end if;
  update shop.till set last_contact = now() where till = t.till;
end $$;

revoke all on all functions in schema api, shop from public;
grant execute on all functions in schema api to tills;
