-- A stored-value card that all shops of a chain take is decided about at head office, where a shop's
-- server asks for it.

-- Whether the shop's cards are head office's: turned on by the owner of the chain.
create function shop.share_cards(shared boolean) returns void language sql as $$
  insert into shop.setting values ('shared_cards', shared)
    on conflict (name) do update set value = excluded.value
$$;

create function shop.decide_charge(asking integer, its_key text, card text, due numeric,
                                   out outcome text, out balance numeric) language plpgsql as $$
declare
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
end $$;

-- Head office's answer. A line of its own, not a foreign table: that would read with the snapshot of
-- before it waited its turn, and spend a balance twice.
create function api.charge_for_shop(its_shop integer, asking integer, its_key text, card text,
                                    due numeric, out outcome text, out balance numeric)
language plpgsql security definer set search_path = shop, pg_temp as $$
begin
  if session_user <> 'shop_' || its_shop then
    raise exception using errcode = 'TL001', message = 'not this shop';
  end if;
  select * into outcome, balance
    from shop.decide_charge(its_shop * 1000 + asking, its_key, card, due);
end $$;

-- Asks head office, at most 1.5 s. Whatever goes wrong is an error, after which the till takes back
-- what may have been done.
create function shop.ask_head_office(question text, out outcome text, out balance numeric)
language plpgsql as $$
declare
  deadline timestamptz := clock_timestamp() + interval '1.5 seconds';
  asked integer;
begin
  if not 'head_office' = any (coalesce(chain.dblink_get_connections(), '{}')) then
    perform chain.dblink_connect('head_office',
      (select value from shop.setting where name = 'head_office') || ' connect_timeout=2');
  end if;
  asked := chain.dblink_send_query('head_office', question);
  while asked = 1 and chain.dblink_is_busy('head_office') = 1 loop
    if clock_timestamp() > deadline then
      raise exception 'head office does not answer';
    end if;
    perform pg_sleep(0.002);
  end loop;
  select * into strict outcome, balance
    from chain.dblink_get_result('head_office') as answer(outcome text, balance numeric);
  perform * from chain.dblink_get_result('head_office') as answer(outcome text, balance numeric);
exception when others then
  if 'head_office' = any (coalesce(chain.dblink_get_connections(), '{}')) then
    perform chain.dblink_disconnect('head_office');
  end if;
  raise;
end $$;

create or replace function api.charge(asking integer, its_key text, card text, due numeric,
                                      out outcome text, out balance numeric)
language plpgsql security definer set search_path = shop, pg_temp as $$
declare
  t shop.till := shop.enrolled_caller(asking);
begin
  if (select value from shop.setting where name = 'shared_cards') = 'true' then
    select * into outcome, balance from shop.ask_head_office(
      format('select * from api.charge_for_shop(%s, %s, %L, %L, %s)', shop.number(), asking,
             its_key, card, due));
  else
    select * into outcome, balance from shop.decide_charge(asking, its_key, card, due);
  end if;
  update shop.till set last_contact = now() where till = t.till;
end $$;

revoke all on all functions in schema api, shop from public;
grant execute on all functions in schema api to tills;
revoke execute on function api.charge_for_shop from tills;
