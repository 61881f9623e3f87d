-- A bill is looked for by the number on its receipt, too.
create or replace view shop.sold as
  select s.till, s.bill * 1000 + s.epoch as id, s.sold_at as sell_time, s.operator as operator_id,
         s.quantity - coalesce(b.quantity, 0) as quantity,
         case when s.goods_amount = b.money then 0
              else s.amount - coalesce(b.money, 0) end as amount,
         s.goods_amount - coalesce(b.money, 0) as goods_amount,
         s.cash, s.favorable, s.bank_card, s.phone_pay, s.card_pay,
         l.line, l.item as bm, l.name, l.category as splbmc, l.ratio, l.price, l.discount,
         l.cost as in_price, l.quantity - coalesce(lb.quantity, 0) as line_quantity,
         l.money - coalesce(lb.money, 0) as money, s.bill
  from shop.sale s
  left join shop.bill_back b on (b.till, b.epoch, b.bill) = (s.till, s.epoch, s.bill)
  left join shop.sale_line l on (l.till, l.epoch, l.bill) = (s.till, s.epoch, s.bill)
  left join shop.line_back lb
    on (lb.till, lb.epoch, lb.bill, lb.line) = (l.till, l.epoch, l.bill, l.line);
