-- What the owner's report reads, under the names that the tills' own tables have. A bill and its
-- lines are as returns have left them: a line keeps what did not come back, at its price; the
-- rounding that the customer paid stays in the amount due until nothing of worth is left.
create index sale_bill on shop.sale (bill);
create index taken_back_bill on shop.taken_back (bill);
create index taken_back_at on shop.taken_back (taken_at);

-- A bill's number carries the till that sold it, whichever till takes its goods back.
create view shop.line_back as
  select l.till, l.epoch, l.bill, l.line, sum(t.quantity) as quantity,
         l.money - round(l.price * (l.quantity - sum(t.quantity)) * l.discount, 2) as money
  from shop.taken_back t
  join shop.sale s on s.bill = t.bill
  join shop.sale_line l on (l.till, l.epoch, l.bill, l.line) = (s.till, s.epoch, t.bill, t.line)
  group by l.till, l.epoch, l.bill, l.line;

create view shop.bill_back as
  select till, epoch, bill, sum(quantity) as quantity, sum(money) as money
  from shop.line_back group by till, epoch, bill;

create view shop.sold as
  select s.till, s.bill * 1000 + s.epoch as id, s.sold_at as sell_time, s.operator as operator_id,
         s.quantity - coalesce(b.quantity, 0) as quantity,
         case when s.goods_amount = b.money then 0
              else s.amount - coalesce(b.money, 0) end as amount,
         s.goods_amount - coalesce(b.money, 0) as goods_amount,
         s.cash, s.favorable, s.bank_card, s.phone_pay, s.card_pay,
         l.line, l.item as bm, l.name, l.category as splbmc, l.ratio, l.price, l.discount,
         l.cost as in_price, l.quantity - coalesce(lb.quantity, 0) as line_quantity,
         l.money - coalesce(lb.money, 0) as money
  from shop.sale s
  left join shop.bill_back b on (b.till, b.epoch, b.bill) = (s.till, s.epoch, s.bill)
  left join shop.sale_line l on (l.till, l.epoch, l.bill) = (s.till, s.epoch, s.bill)
  left join shop.line_back lb
    on (lb.till, lb.epoch, lb.bill, lb.line) = (l.till, l.epoch, l.bill, l.line);

create view shop.returned as
  select t.till, t.seq, t.taken_at as un_time, t.operator as operator_id, t.item as bm, t.quantity,
         t.money, l.name, l.ratio
  from shop.taken_back t
  left join shop.sale s on s.bill = t.bill
  left join shop.sale_line l on (l.till, l.epoch, l.bill, l.line) = (s.till, s.epoch, t.bill, t.line);

-- Who the operators are: as the owner published them, else as the tills told it last.
create index fact_names on shop.fact (place)
  where kind in ('books_stated', 'operator_added', 'operator_changed');

create view shop.report_operators as
  select distinct on (id) id, name
  from (select place, (o->>'id')::bigint as id, o->>'name' as name
        from shop.fact,
             lateral jsonb_array_elements(
               coalesce(body::jsonb->'operators',
                        jsonb_build_array(body::jsonb->'operator'))) o
        where kind in ('books_stated', 'operator_added', 'operator_changed')
          and jsonb_typeof(o) = 'object'
        union all
        select null, key::bigint, body->>'name' from shop.change
        where tbl = 'operators' and body is not null) told
  order by id, place desc;

create view shop.report_names as
  select tbl, key, coalesce(body->>'f_spmc', body->>'value') as name from shop.change
  where tbl in ('spda', 'sys_param');
create view shop.report_goods as
  select coalesce(c.body->>'f_spbm', s.item) as f_spbm, s.quantity, c.body->>'f_spmc' as f_spmc,
         c.body->>'f_splbmc' as f_splbmc, shop.amount_of(c.body->>'f_zhjj') as f_zhjj
  from (select key, body from shop.change where tbl = 'spda' and body is not null) c
  full join shop.stock s on s.item = c.key
  order by 1;
