-- What comes down to the tills: the shop's masters as its owner published them, members and
-- passwords as tills changed them, and what the others did to stock and cards. One row per thing,
-- stamped with the transaction that wrote it last. A till has a place behind which it wants the
-- rows, and gets those of transactions that ended before every one that is still open: a number
-- counted up would be passed by a transaction that began early and commits late.
create table shop.change (
  tbl       text collate "C" not null,
  key       text collate "C" not null,  -- ASCII letters in lower case; two columns apart by U+001F
  tx        xid8 not null,
  body      jsonb,                      -- the row by columns; null: it is gone
  published jsonb,                      -- as the owner published it last, if he did
  primary key (tbl, key)
);
create index change_place on shop.change (tx, tbl, key);
create function shop.stamp_change() returns trigger language plpgsql as $$
begin
  new.tx := pg_current_xact_id();
  return new;
end $$;
create trigger change_stamped before insert or update on shop.change
  for each row execute function shop.stamp_change();

create function shop.change_row(tbl text, key text, body jsonb) returns void language sql as $$
  insert into shop.change as known (tbl, key, body) values ($1, $2, $3)
  on conflict on constraint change_pkey do update set body = excluded.body
    where known.body is distinct from excluded.body
$$;

-- The owner's tool has put all rows of the office's file into the temporary table incoming (tbl,
-- key, body). What the owner changed since he published last is written, so that what tills changed
-- meanwhile stays; what he published before and has no more is gone.
create function shop.publish(out added bigint, out changed bigint, out removed bigint)
language plpgsql as $$
begin
  update shop.change c set body = null, published = null
    where published is not null
      and not exists (select from incoming i where (i.tbl, i.key) = (c.tbl, c.key));
  get diagnostics removed = row_count;
  select count(*) into changed from incoming i join shop.change c using (tbl, key)
    where c.published is distinct from i.body and c.body is not null
      and c.body is distinct from i.body;
  update shop.change c set body = i.body, published = i.body from incoming i
    where (i.tbl, i.key) = (c.tbl, c.key) and c.body is not null
      and c.published is distinct from i.body;
  insert into shop.change (tbl, key, body, published) select tbl, key, body, body from incoming i
    where not exists (select from shop.change c
                      where (c.tbl, c.key) = (i.tbl, i.key) and c.body is not null)
    on conflict on constraint change_pkey do update
      set body = excluded.body, published = excluded.published;
  get diagnostics added = row_count;
end $$;

-- What a till's file says itself, without what came down to it: the last that it stated, and what
-- it moved since, in the history that its file has. Whatever else the shop knows is the others'.
create table shop.own_stated (
  tbl    text not null,
  key    text not null,
  till   integer not null,
  epoch  integer not null,
  seq    bigint not null,
  amount numeric not null,
  primary key (tbl, key, till, epoch, seq)
);
create function shop.history(of_till integer) returns table (epoch integer, last bigint)
language sql stable as $$
  with recursive line (epoch, last) as (
    select t.epoch, 9223372036854775807 from shop.till t where t.till = of_till
    union all
    select e.from_epoch, least(line.last, e.from_seq)
    from line join shop.epoch e on e.till = of_till and e.epoch = line.epoch)
  select * from line
$$;
create function shop.others(of_till integer, tbl text, key text) returns numeric
language plpgsql stable as $$
declare
  total numeric;
  own numeric := 0;
  s shop.own_stated;
begin
  select o.* into s from shop.own_stated o join shop.history(of_till) h on h.epoch = o.epoch
    where (o.tbl, o.key, o.till) = ($2, $3, of_till) and o.seq <= h.last
    order by o.epoch desc, o.seq desc limit 1;
  if tbl = 'stock' then
    select quantity into total from shop.stock where item = $3;
    select sum(m.quantity) into own from shop.movement m join shop.history(of_till) h
      on h.epoch = m.epoch where m.item = $3 and m.till = of_till and m.seq <= h.last
        and (s.key is null or (m.epoch, m.seq) > (s.epoch, s.seq));
  else
    select coalesce((select sum(counted) from shop.card where number = $3), 0) +
           coalesce((select sum(amount) from shop.card_entry where number = $3), 0) into total;
    select sum(e.amount) into own from shop.card_entry e join shop.history(of_till) h
      on h.epoch = e.epoch where e.number = $3 and e.till = of_till and e.seq <= h.last
        and (s.key is null or (e.epoch, e.seq) > (s.epoch, s.seq));
  end if;
  return coalesce(total, 0) - coalesce(own, 0) - coalesce(s.amount, 0);
end $$;

-- Stock and cards that a till moved. They become changes when its facts are all taken, in one order,
-- so that no two tills wait for each other crosswise. Empty when nobody works.
create unlogged table shop.touched (till integer not null, tbl text not null, key text not null);
create function shop.touch_stock() returns trigger language plpgsql as $$
begin
  insert into shop.touched select distinct till, 'stock', item from written;
  return null;
end $$;
create function shop.touch_cards() returns trigger language plpgsql as $$
begin
  insert into shop.touched select distinct till, 'card', number from written;
  return null;
end $$;
create trigger movement_touches after insert on shop.movement referencing new table as written
  for each statement execute function shop.touch_stock();
create trigger stock_base_touches after insert on shop.stock_base referencing new table as written
  for each statement execute function shop.touch_stock();
create trigger stock_base_touched after update on shop.stock_base referencing new table as written
  for each statement execute function shop.touch_stock();
create trigger card_entry_touches after insert on shop.card_entry referencing new table as written
  for each statement execute function shop.touch_cards();
create trigger card_touches after insert on shop.card referencing new table as written
  for each statement execute function shop.touch_cards();
create trigger card_touched after update on shop.card referencing new table as written
  for each statement execute function shop.touch_cards();
create function shop.tell_touched() returns trigger language plpgsql as $$
begin
  with gone as (delete from shop.touched where till = new.till returning tbl, key)
  insert into shop.change (tbl, key, body)
    select tbl, key, '{}'::jsonb from gone group by tbl, key order by tbl, key
    on conflict on constraint change_pkey do update set body = excluded.body;
  return null;
end $$;
create trigger till_told after update of applied on shop.till
  for each row when (old.applied <> new.applied) execute function shop.tell_touched();

create function shop.state_own(f shop.fact, tbl text, key text, amount text) returns void
language sql as $$
  insert into shop.own_stated values ($2, $3, f.till, f.epoch, f.seq, shop.amount_of($4))
  on conflict do nothing
$$;

-- A member as a till has it. Its record leaves out what is empty or 0, and its password.
create function shop.change_member(m jsonb, secret text) returns void language sql as $$
  select shop.change_row('member', lower(m->>'bh'), jsonb_build_object(
    'bh', m->>'bh', 'name', coalesce(m->>'name', ''), 'hyzklb', coalesce(m->>'hyzklb', ''),
    'password', coalesce(secret, (select body->>'password' from shop.change
                                  where tbl = 'member' and key = lower(m->>'bh')), ''),
    'sex', coalesce(m->>'sex', ''), 'age', coalesce(m->>'age', '0'),
    'phone', coalesce(m->>'phone', ''), 'address', coalesce(m->>'address', ''),
    'other', coalesce(m->>'other', ''), 'enabled', coalesce(m->>'enabled', '0'),
    'discount', m->>'discount', 'birthday', m->>'birthday', 'join_date', m->>'join_date'))
$$;

alter function shop.apply(shop.fact) rename to apply_books;
create function shop.apply(f shop.fact) returns void language plpgsql as $$
declare
  body jsonb := f.body::jsonb;
begin
  perform shop.apply_books(f);
  perform shop.state_own(f, 'stock', lower(key), value) from jsonb_each_text(body->'stock');
  perform shop.state_own(f, 'card', lower(m->>'bh'), m->>'card')
    from jsonb_array_elements(coalesce(body->'members', jsonb_build_array(body->'member'))) m
    where m->>'bh' is not null;
  if body->>'down' is not null or current_setting('shop.rebuilding', true) = 'yes' then return; end if;
  if f.kind in ('member_added', 'member_changed') then
    perform shop.change_member(body->'member', body->>'secret');
  elsif f.kind in ('operator_added', 'operator_changed') and body->>'secret' is not null then
    update shop.change c set body = c.body || jsonb_build_object('password', f.body::jsonb->>'secret')
      where c.tbl = 'operators' and c.key = f.touches and c.body is not null;
  end if;
end $$;

create or replace function shop.rebuild() returns void language plpgsql as $$
declare
  f shop.fact;
begin
  lock table shop.till in exclusive mode;
  truncate shop.sale, shop.sale_line, shop.taken_back, shop.stock_base, shop.movement, shop.card,
           shop.card_entry, shop.fault, shop.own_stated;
  perform set_config('shop.rebuilding', 'yes', true);  -- what came down since is newer than the facts
  for f in select * from shop.fact order by place loop
    perform shop.take(f);
  end loop;
  perform set_config('shop.rebuilding', '', true);
end $$;

-- Which server this is, and which of its lives. One that was put back from its own copy is known
-- by having forgotten what it told a till.
create function shop.generation() returns text language sql stable as $$
  select (select system_identifier from pg_control_system()) || '.' ||
         (select timeline_id from pg_control_checkpoint())
$$;
alter table shop.till add column told_tx xid8, add column told_tbl text collate "C",
  add column told_key text collate "C";

create function shop.body_for(of_till integer, tbl text, key text, body jsonb) returns jsonb
language sql stable as $$
  select case when tbl in ('stock', 'card')
              then jsonb_build_object('others', shop.others(of_till, tbl, key)) else body end
$$;

-- The changes behind that place, in their order, at most so many: each as [tx, tbl, key, body]. Fewer
-- than `most` are all that there are. Who is of another generation, or was told what this server
-- forgot, has to compare everything (TL007).
create function api.changes(asking integer, its_generation text, its_tx text, its_tbl text,
                            its_key text, most integer, out tx text, out tbl text, out key text,
                            out changes jsonb)
language plpgsql security definer set search_path = shop, pg_temp as $$
declare
  t shop.till := shop.enrolled_caller(asking);
  open_from xid8 := pg_snapshot_xmin(pg_current_snapshot());
begin
  if its_generation <> shop.generation() or t.told_tx is null or
     (its_tx::xid8, its_tbl collate "C", its_key collate "C") > (t.told_tx, t.told_tbl, t.told_key) then
    raise exception using errcode = 'TL007', message = 'everything is to be compared';
  end if;
  select coalesce(jsonb_agg(jsonb_build_array(c.tx::text, c.tbl, c.key,
                                              shop.body_for(asking, c.tbl, c.key, c.body))
                            order by c.tx, c.tbl, c.key), '[]') into changes
    from (select * from shop.change n
          where (n.tx, n.tbl, n.key) > (its_tx::xid8, its_tbl collate "C", its_key collate "C")
            and n.tx < open_from
          order by n.tx, n.tbl, n.key limit most) c;
  if jsonb_array_length(changes) = most then
    tx := changes->-1->>0;
    tbl := changes->-1->>1;
    key := changes->-1->>2;
  elsif open_from > its_tx::xid8 then
    tx := open_from::text;
    tbl := '';
    key := '';
  else
    tx := its_tx;
    tbl := its_tbl;
    key := its_key;
  end if;
  update shop.till set last_contact = now(), told_tx = tx::xid8, told_tbl = tbl, told_key = key
    where till = asking;
end $$;

-- All rows by table and key behind that one, at most so many. Who begins (no generation) is given
-- the place from which to ask for changes afterwards. `whole` are the tables that the owner
-- publishes: a till has no other rows of them.
create function api.walk(asking integer, its_generation text, its_tx text, its_tbl text,
                         its_key text, most integer,
                         out generation text, out horizon text, out changes jsonb, out whole jsonb)
language plpgsql security definer set search_path = shop, pg_temp as $$
declare
  t shop.till := shop.enrolled_caller(asking);
begin
  generation := shop.generation();
  if its_generation = '' then
    horizon := pg_snapshot_xmin(pg_current_snapshot())::text;
    t.told_tx := horizon::xid8;
  elsif its_generation <> generation or t.told_tx is distinct from its_tx::xid8 then
    raise exception using errcode = 'TL007', message = 'everything is to be compared';
  else
    horizon := its_tx;
  end if;
  select coalesce(jsonb_agg(jsonb_build_array(horizon, c.tbl, c.key,
                                              shop.body_for(asking, c.tbl, c.key, c.body))
                            order by c.tbl, c.key), '[]') into changes
    from (select * from shop.change n
          where (n.tbl, n.key) > (its_tbl collate "C", its_key collate "C") and n.body is not null
          order by n.tbl, n.key limit most) c;
  whole := coalesce((select jsonb_agg(p.tbl) from
    (select n.tbl from unnest(array['SP_LB', 'operator_cards', 'operator_rights', 'operators',
                                    'spda', 'tmda']) as n(tbl)
     where exists (select from shop.change c where c.tbl = n.tbl and c.published is not null)) p),
    '[]');
  update shop.till set last_contact = now(), told_tx = t.told_tx, told_tbl = '', told_key = ''
    where till = asking;
end $$;

revoke all on all functions in schema api, shop from public;
grant execute on all functions in schema api to tills;
