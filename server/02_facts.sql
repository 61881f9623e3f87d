-- How facts become rows. Nothing here refuses a fact: what cannot be read is noted by shop.take.

create function shop.amount_of(value text) returns numeric language sql immutable as $$
  select coalesce(value::numeric, 0)
$$;

create function shop.apply_bill(f shop.fact, body jsonb) returns void language plpgsql as $$
declare
  b jsonb := body->'bill';
begin
  insert into shop.sale values (
    f.till, f.epoch, (b->>'id')::bigint, f.seq, (b->>'sell_time')::timestamp,
    (b->>'operator_id')::bigint, (b->>'salesman')::bigint, (b->>'member_id')::bigint,
    b->>'card_no', b->>'phone_slip', shop.amount_of(b->>'quantity'),
    shop.amount_of(b->>'goods_amount'), shop.amount_of(b->>'amount'), shop.amount_of(b->>'cash'),
    shop.amount_of(b->>'favorable'), shop.amount_of(b->>'bank_card'),
    shop.amount_of(b->>'phone_pay'), shop.amount_of(b->>'card_pay'));
  insert into shop.sale_line
    select f.till, f.epoch, (b->>'id')::bigint, (l->>'id')::bigint, l->>'bm', l->>'name',
           l->>'unit', l->>'splbmc', shop.amount_of(l->>'amount'), shop.amount_of(l->>'ratio'),
           shop.amount_of(l->>'price'), shop.amount_of(l->>'discount'),
           shop.amount_of(l->>'money'), (l->>'in_price')::numeric
    from jsonb_array_elements(body->'lines') l;
  insert into shop.movement
    select f.till, f.epoch, f.seq, line, lower(item), -quantity * ratio
    from shop.sale_line where till = f.till and epoch = f.epoch and bill = (b->>'id')::bigint;
end $$;

create function shop.apply_return(f shop.fact, body jsonb) returns void language plpgsql as $$
declare
  r jsonb := body->'return';
begin
  insert into shop.taken_back values (
    f.till, f.epoch, (r->>'id')::bigint, f.seq, (r->>'sell_id')::bigint, (r->>'item_id')::bigint,
    body->>'item', (r->>'un_time')::timestamp, (r->>'operator_id')::bigint,
    shop.amount_of(r->>'quantity'), shop.amount_of(r->>'money'));
  insert into shop.movement values (
    f.till, f.epoch, f.seq, 0, lower(body->>'item'),
    shop.amount_of(r->>'quantity') * shop.amount_of(r->>'ratio'));
end $$;

create function shop.apply_stock(f shop.fact, body jsonb) returns void language sql as $$
  insert into shop.stock_base as base
    select f.till, told.item, told.quantity - moved.quantity,
           case when known.item is null then told.quantity - moved.quantity else 0 end
    from (select lower(key) as item, sum(shop.amount_of(value)) as quantity
          from jsonb_each_text(body->'stock') group by lower(key)) told
    cross join lateral (select coalesce(sum(m.quantity), 0) as quantity from shop.movement m
                        where m.item = told.item and m.till = f.till) moved
    left join lateral (select b.item from shop.stock_base b
                       where b.item = told.item limit 1) known on true
  on conflict (till, item) do update
    set counted = base.counted + excluded.told - base.told, told = excluded.told
$$;

create function shop.apply_cards(f shop.fact, members jsonb) returns void language sql as $$
  insert into shop.card as base
    select f.till, told.number, told.balance - moved.amount,
           case when known.number is null then told.balance - moved.amount else 0 end
    from (select lower(m->>'bh') as number, sum(shop.amount_of(m->>'card')) as balance
          from jsonb_array_elements(members) m group by lower(m->>'bh')) told
    cross join lateral (select coalesce(sum(e.amount), 0) as amount from shop.card_entry e
                        where e.number = told.number and e.till = f.till) moved
    left join lateral (select c.number from shop.card c
                       where c.number = told.number limit 1) known on true
  on conflict (till, number) do update
    set counted = base.counted + excluded.told - base.told, told = excluded.told
$$;

create function shop.apply(f shop.fact) returns void language plpgsql as $$
declare
  body jsonb := f.body::jsonb;
begin
  if (body->>'v')::integer > 1 then
    raise data_exception using message = 'written by a newer till';
  end if;
  case f.kind
    when 'bill_settled', 'bill_completed' then perform shop.apply_bill(f, body);
    when 'goods_returned' then perform shop.apply_return(f, body);
    when 'bill_redated' then
      update shop.sale set sold_at = (body->'bill'->>'sell_time')::timestamp
      where till = f.till and bill = f.touches::bigint
        and epoch = (select max(epoch) from shop.sale
                     where till = f.till and bill = f.touches::bigint);
    when 'card_charged', 'top_up_loaded' then
      insert into shop.card_entry values (f.till, f.epoch, f.seq, lower(body->'card'->>'number'),
                                          shop.amount_of(body->'card'->>'by'));
    when 'books_stated', 'stock_counted' then
      perform shop.apply_stock(f, body);
      perform shop.apply_cards(f, coalesce(body->'members', '[]'));
    when 'member_added', 'member_changed' then
      perform shop.apply_cards(f, jsonb_build_array(body->'member'));
    when 'journal_begun', 'journal_ended', 'logged_in', 'login_refused', 'logged_off',
         'bill_opened', 'price_typed', 'quantity_lowered', 'discount_changed', 'line_deleted',
         'bill_cancelled', 'bill_suspended', 'bill_recalled', 'top_up_begun', 'drawer_opened',
         'reprinted', 'exported', 'reported', 'settings_changed', 'parameter_set',
         'operator_added', 'operator_changed', 'operator_removed', 'imported', 'restored',
         'clock_set_back', 'approval_given', 'approval_refused', 'shift_opened', 'cash_moved',
         'shift_counted', 'shift_closed' then null;
    else raise data_exception using message = 'unknown kind ' || f.kind;
  end case;
end $$;

-- What is wrong with the fact itself is noted; what is wrong with the server ends the transaction.
create function shop.take(f shop.fact) returns void language plpgsql as $$
begin
  perform shop.apply(f);
exception when others then
  if left(sqlstate, 2) not in ('22', '23', '54') then raise; end if;
  insert into shop.fault (till, epoch, seq, what) values (f.till, f.epoch, f.seq, sqlerrm);
end $$;

-- Statements of several tills about one item or card take each other's turn.
create function shop.in_turn() returns void language sql as $$
  select pg_advisory_xact_lock(8407101)
$$;

create function shop.rebuild() returns void language plpgsql as $$
declare
  f shop.fact;
begin
  lock table shop.till in exclusive mode;
  truncate shop.sale, shop.sale_line, shop.taken_back, shop.stock_base, shop.movement, shop.card,
           shop.card_entry, shop.fault;
  for f in select * from shop.fact order by place loop
    perform shop.take(f);
  end loop;
end $$;

-- A mark of everything that rebuild makes, but for the times of faults.
create function shop.rows_mark() returns text language plpgsql as $$
declare
  name text;
  mark text;
  marks text := '';
begin
  foreach name in array array['sale', 'sale_line', 'taken_back', 'stock_base', 'movement', 'card',
                              'card_entry'] loop
    execute format('select coalesce(sum(hashtextextended(t::text, 0)::numeric), 0) || '':'' ||
                    count(*) from shop.%I t', name) into mark;
    marks := marks || name || '=' || mark || ' ';
  end loop;
  return marks;
end $$;

-- Holds the rows against what the facts make of them. Unless `keep`, the rows stay as they were.
create function shop.compare_rows(keep boolean, out agree boolean) language plpgsql as $$
declare
  before text := shop.rows_mark();
begin
  perform shop.rebuild();
  agree := before = shop.rows_mark();
  if not keep then
    raise exception using errcode = 'TL009', message = 'taken back';
  end if;
exception when sqlstate 'TL009' then null;
end $$;
