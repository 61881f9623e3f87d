-- What moved long ago is added up in place: of a till's rows of one item the first keeps the sum and
-- the others go, so that what an item has in stock stays quick to add up. Every sum is what it was,
-- whoever makes it: only rows that no till told a count between are added up, and none behind where a
-- till's history forked. What is made anew from the facts is whole again.
create index fact_statements on shop.fact (till, epoch, seq)
  where kind in ('books_stated', 'stock_counted', 'member_added', 'member_changed');

-- Of the next so many items behind that one; gives the last of them, or null when there is none.
create function shop.fold_movements(behind text, items integer, long_ago timestamptz,
                                    out last text, out gone bigint) language plpgsql as $$
begin
  gone := 0;
  select max(item) into last
    from (select distinct item from shop.movement where item > behind order by item limit items) i;
  with old as (
    select m.till, m.epoch, m.seq, m.line, sum(m.quantity) over same as quantity,
           row_number() over (same order by m.seq, m.line) as place, count(*) over same as parts
    from shop.movement m
    join shop.fact f on (f.till, f.epoch, f.seq) = (m.till, m.epoch, m.seq) and f.received < long_ago
    left join lateral (
      select s.seq from shop.fact s
      where s.till = m.till and s.epoch = m.epoch and s.seq < m.seq
        and s.kind in ('books_stated', 'stock_counted', 'member_added', 'member_changed')
      order by s.seq desc limit 1) told on true
    where m.item > behind and m.item <= last
      and not exists (select from shop.epoch e where e.till = m.till and e.from_epoch = m.epoch
                        and e.from_seq < m.seq)
    window same as (partition by m.item, m.till, m.epoch, told.seq)),
  kept as (
    update shop.movement m set quantity = old.quantity from old
      where (m.till, m.epoch, m.seq, m.line) = (old.till, old.epoch, old.seq, old.line)
        and old.place = 1 and old.parts > 1)
  delete from shop.movement m using old
    where (m.till, m.epoch, m.seq, m.line) = (old.till, old.epoch, old.seq, old.line)
      and old.place > 1;
  get diagnostics gone = row_count;
end $$;

-- The same of cards.
create function shop.fold_cards(behind text, numbers integer, long_ago timestamptz,
                                out last text, out gone bigint) language plpgsql as $$
begin
  gone := 0;
  select max(number) into last
    from (select distinct number from shop.card_entry where number > behind
          order by number limit numbers) n;
  with old as (
    select c.till, c.epoch, c.seq, sum(c.amount) over same as amount,
           row_number() over (same order by c.seq) as place, count(*) over same as parts
    from shop.card_entry c
    join shop.fact f on (f.till, f.epoch, f.seq) = (c.till, c.epoch, c.seq) and f.received < long_ago
    left join lateral (
      select s.seq from shop.fact s
      where s.till = c.till and s.epoch = c.epoch and s.seq < c.seq
        and s.kind in ('books_stated', 'stock_counted', 'member_added', 'member_changed')
      order by s.seq desc limit 1) told on true
    where c.number > behind and c.number <= last
      and not exists (select from shop.epoch e where e.till = c.till and e.from_epoch = c.epoch
                        and e.from_seq < c.seq)
    window same as (partition by c.number, c.till, c.epoch, told.seq)),
  kept as (
    update shop.card_entry c set amount = old.amount from old
      where (c.till, c.epoch, c.seq) = (old.till, old.epoch, old.seq)
        and old.place = 1 and old.parts > 1)
  delete from shop.card_entry c using old
    where (c.till, c.epoch, c.seq) = (old.till, old.epoch, old.seq) and old.place > 1;
  get diagnostics gone = row_count;
end $$;

-- What is folded and what is whole have the same mark.
create view shop.movement_sums as
  select till, epoch, item, sum(quantity)::numeric(18,6) as quantity
  from shop.movement group by till, epoch, item;
create view shop.card_sums as
  select till, epoch, number, sum(amount)::numeric(19,4) as amount
  from shop.card_entry group by till, epoch, number;
create or replace function shop.rows_mark() returns text language plpgsql as $$
declare
  name text;
  mark text;
  marks text := '';
begin
  foreach name in array array['sale', 'sale_line', 'taken_back', 'stock_base', 'movement_sums', 'card',
                              'card_sums', 'own_stated'] loop
    execute format('select coalesce(sum(hashtextextended(t::text, 0)::numeric), 0) || '':'' ||
                    count(*) from shop.%I t', name) into mark;
    marks := marks || name || '=' || mark || ' ';
  end loop;
  return marks;
end $$;
revoke all on all functions in schema shop from public;
