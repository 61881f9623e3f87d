-- What members bought and which points they earned, kept as stock and cards are: what a till told of
-- a member, and what it credited since. `what` is spent or points; each till is told the sums of all
-- the others, under that name.
create table shop.member_named (   -- who is meant by a till's own number of a member
  till   integer not null,
  id     bigint not null,
  number text not null,
  primary key (till, id)
);
create table shop.member_base (
  till    integer not null,
  what    text not null,
  number  text not null,
  told    numeric(19,4) not null,
  counted numeric(19,4) not null,
  primary key (till, what, number)
);
create index member_base_number on shop.member_base (number, what);
create table shop.credit (
  till   integer not null,
  epoch  integer not null,
  seq    bigint not null,
  what   text not null,
  number text not null,
  amount numeric(19,4) not null,
  primary key (till, epoch, seq, what)
);
create index credit_number on shop.credit (number, what) include (till, amount);
create view shop.member_sum as
  select what, number, sum(amount)::numeric(19,4) as amount
  from (select what, number, counted as amount from shop.member_base
        union all select what, number, amount from shop.credit) parts
  group by what, number;

create function shop.touch_member() returns trigger language plpgsql as $$
begin
  insert into shop.touched values (new.till, new.what, new.number);
  return null;
end $$;
create trigger credit_touches after insert on shop.credit
  for each row when (new.amount <> 0) execute function shop.touch_member();
create trigger member_base_touches after insert on shop.member_base
  for each row when (new.told <> 0 or new.counted <> 0) execute function shop.touch_member();
create trigger member_base_touched after update on shop.member_base
  for each row when (old.told <> new.told or old.counted <> new.counted)
  execute function shop.touch_member();

-- The first till that tells of a member counts it for the shop, another one's first figure is taken
-- for a copy, and later ones count by what they changed.
create function shop.apply_members(f shop.fact, members jsonb) returns void language sql as $$
  insert into shop.member_named
    select distinct on (id) f.till, (m->>'id')::bigint as id, lower(m->>'bh')
    from jsonb_array_elements(members) m where m->>'id' is not null and m->>'bh' is not null
  on conflict (till, id) do update set number = excluded.number;
  with figures as (
    select c.what, lower(m->>'bh') as number, sum(shop.amount_of(m->>c.field)) as amount
    from jsonb_array_elements(members) m,
         (values ('spent', 'total_spent'), ('points', 'points')) as c(what, field)
    where m->>'bh' is not null group by c.what, lower(m->>'bh')),
  stated as (
    insert into shop.own_stated (tbl, key, till, epoch, seq, amount)
      select what, number, f.till, f.epoch, f.seq, amount from figures
    on conflict do nothing)
  insert into shop.member_base as base
    select f.till, told.what, told.number, told.amount - moved.amount,
           case when known.number is null then told.amount - moved.amount else 0 end
    from figures told
    cross join lateral (select coalesce(sum(c.amount), 0) as amount from shop.credit c
                        where (c.number, c.what) = (told.number, told.what)
                          and c.till = f.till) moved
    left join lateral (select b.number from shop.member_base b
                       where (b.number, b.what) = (told.number, told.what) limit 1) known on true
  on conflict (till, what, number) do update
    set counted = base.counted + excluded.told - base.told, told = excluded.told
$$;

-- A credit names the member by the till's own number. Of one that the till never told there is
-- nobody to credit; the bill counts all the same.
create function shop.apply_credit(f shop.fact, credit jsonb) returns void language plpgsql as $$
begin
  insert into shop.credit
    select f.till, f.epoch, f.seq, c.what, n.number, shop.amount_of(credit->>c.what)
    from shop.member_named n, (values ('spent'), ('points')) as c(what)
    where (n.till, n.id) = (f.till, (credit->>'member')::bigint);
  if not found then
    insert into shop.fault (till, epoch, seq, what)
      values (f.till, f.epoch, f.seq, 'a member that was never told: ' || (credit->>'member'));
  end if;
end $$;

alter function shop.apply(shop.fact) rename to apply_shared;
create function shop.apply(f shop.fact) returns void language plpgsql as $$
declare
  body jsonb := f.body::jsonb;
begin
  perform shop.apply_shared(f);
  if f.kind in ('books_stated', 'member_added', 'member_changed') then
    perform shop.apply_members(f, coalesce(body->'members', jsonb_build_array(body->'member')))
      where body ? 'members' or body ? 'member';
  elsif f.kind in ('bill_settled', 'bill_completed', 'goods_returned') and body ? 'credit' then
    perform shop.apply_credit(f, body->'credit');
  end if;
end $$;

create or replace function shop.rebuild() returns void language plpgsql as $$
declare
  f shop.fact;
begin
  lock table shop.till in exclusive mode;
  truncate shop.sale, shop.sale_line, shop.taken_back, shop.stock_base, shop.movement, shop.card,
           shop.card_entry, shop.member_named, shop.member_base, shop.credit, shop.fault,
           shop.own_stated;
  perform set_config('shop.rebuilding', 'yes', true);  -- what came down since is newer than the facts
  for f in select * from shop.fact order by place loop
    perform shop.take(f);
  end loop;
  perform set_config('shop.rebuilding', '', true);
end $$;

-- What has moved long ago is added up, as in 09_fold.
create function shop.fold_credits(behind text, numbers integer, long_ago timestamptz,
                                  out last text, out gone bigint) language plpgsql as $$
begin
  gone := 0;
  select max(number) into last
    from (select distinct number from shop.credit where number > behind
          order by number limit numbers) n;
  with old as (
    select c.till, c.epoch, c.seq, c.what, sum(c.amount) over same as amount,
           row_number() over (same order by c.seq) as place, count(*) over same as parts
    from shop.credit c
    join shop.fact f on (f.till, f.epoch, f.seq) = (c.till, c.epoch, c.seq) and f.received < long_ago
    left join lateral (
      select s.seq from shop.fact s
      where s.till = c.till and s.epoch = c.epoch and s.seq < c.seq
        and s.kind in ('books_stated', 'stock_counted', 'member_added', 'member_changed')
      order by s.seq desc limit 1) told on true
    where c.number > behind and c.number <= last
      and not exists (select from shop.epoch e where e.till = c.till and e.from_epoch = c.epoch
                        and e.from_seq < c.seq)
    window same as (partition by c.what, c.number, c.till, c.epoch, told.seq)),
  kept as (
    update shop.credit c set amount = old.amount from old
      where (c.till, c.epoch, c.seq, c.what) = (old.till, old.epoch, old.seq, old.what)
        and old.place = 1 and old.parts > 1)
  delete from shop.credit c using old
    where (c.till, c.epoch, c.seq, c.what) = (old.till, old.epoch, old.seq, old.what)
      and old.place > 1;
  get diagnostics gone = row_count;
end $$;
create view shop.credit_sums as
  select till, epoch, what, number, sum(amount)::numeric(19,4) as amount
  from shop.credit group by till, epoch, what, number;
create or replace function shop.rows_mark() returns text language plpgsql as $$
declare
  name text;
  mark text;
  marks text := '';
begin
  foreach name in array array['sale', 'sale_line', 'taken_back', 'stock_base', 'movement_sums', 'card',
                              'card_sums', 'member_named', 'member_base', 'credit_sums',
                              'own_stated'] loop
    execute format('select coalesce(sum(hashtextextended(t::text, 0)::numeric), 0) || '':'' ||
                    count(*) from shop.%I t', name) into mark;
    marks := marks || name || '=' || mark || ' ';
  end loop;
  return marks;
end $$;

-- What the others did of each of these keys of one kind, all of them in one statement: a till that
-- begins has a million to ask for. The keys of changes have a collation of their own, with which no
-- index here would be used.
create view shop.counted_part as
  select 'stock' as tbl, item as key, counted as amount from shop.stock_base
  union all select 'card', number, counted from shop.card
  union all select what, number, counted from shop.member_base;
create view shop.moved_part as
  select 'stock' as tbl, item as key, till, epoch, seq, quantity as amount from shop.movement
  union all select 'card', number, till, epoch, seq, amount from shop.card_entry
  union all select what, number, till, epoch, seq, amount from shop.credit;
create function shop.parts_of_others(of_till integer, kind text, keys text[])
returns table (key text, part numeric) language plpgsql stable as $$
declare
  its_kind text collate "default" := kind;
  its_keys text[] collate "default" := keys;
  epochs integer[];
  lasts bigint[];
begin
  select array_agg(h.epoch), array_agg(h.last) into epochs, lasts from shop.history(of_till) h;
  return query
    select k.key, coalesce(c.total, 0) + coalesce(m.total, 0) - coalesce(m.own, 0)
                  - coalesce(s.amount, 0)
    from unnest(its_keys) as k(key)
    left join lateral (
      select o.epoch, o.seq, o.amount from shop.own_stated o
      join unnest(epochs, lasts) as h(epoch, last) on h.epoch = o.epoch and o.seq <= h.last
      where (o.tbl, o.key, o.till) = (its_kind, k.key, of_till)
      order by o.epoch desc, o.seq desc limit 1) s on true
    left join lateral (
      select sum(p.amount) as total from shop.counted_part p
      where (p.tbl, p.key) = (its_kind, k.key)) c on true
    left join lateral (
      select sum(p.amount) as total,
             sum(p.amount) filter (
               where p.till = of_till and (s.epoch is null or (p.epoch, p.seq) > (s.epoch, s.seq))
                 and exists (select from unnest(epochs, lasts) as h(epoch, last)
                             where h.epoch = p.epoch and p.seq <= h.last)) as own
      from shop.moved_part p where (p.tbl, p.key) = (its_kind, k.key)) m on true;
end $$;
create or replace function shop.others(of_till integer, tbl text, key text) returns numeric
language sql stable as $$
  select part from shop.parts_of_others($1, $2, array[$3])
$$;
create function shop.is_sum(tbl text) returns boolean language sql immutable as $$
  select tbl in ('stock', 'card', 'spent', 'points')
$$;
create or replace function shop.body_for(of_till integer, tbl text, key text, body jsonb)
returns jsonb language sql stable as $$
  select case when shop.is_sum(tbl)
              then jsonb_build_object('others', shop.others(of_till, tbl, key)) else body end
$$;

-- As before, but for the sums, which come for all rows at once; and a parameter that the owner has
-- set no more is told as gone.
create or replace function api.walk(asking integer, its_generation text, its_tx text, its_tbl text,
                                    its_key text, most integer,
                                    out generation text, out horizon text, out changes jsonb,
                                    out whole jsonb)
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
  with page as materialized (
    select n.tbl, n.key, n.body from shop.change n
    where (n.tbl, n.key) > (its_tbl collate "C", its_key collate "C")
      and (n.body is not null or n.tbl = 'sys_param')
    order by n.tbl, n.key limit most),
  sums as (
    select k.tbl, p.key, p.part
    from (select tbl, array_agg(key) as keys from page where shop.is_sum(tbl) group by tbl) k
    cross join lateral shop.parts_of_others(asking, k.tbl, k.keys) p)
  select coalesce(jsonb_agg(jsonb_build_array(
             horizon, c.tbl, c.key,
             case when shop.is_sum(c.tbl) then jsonb_build_object('others', s.part)
                  else c.body end) order by c.tbl, c.key), '[]') into changes
    from page c left join sums s on s.tbl = c.tbl and s.key collate "C" = c.key;
  whole := coalesce((select jsonb_agg(p.tbl) from
    (select n.tbl from unnest(array['SP_LB', 'operator_cards', 'operator_rights', 'operators',
                                    'spda', 'tmda']) as n(tbl)
     where exists (select from shop.change c where c.tbl = n.tbl and c.published is not null)) p),
    '[]');
  update shop.till set last_contact = now(), told_tx = t.told_tx, told_tbl = '', told_key = ''
    where till = asking;
end $$;

revoke all on all functions in schema shop from public;
