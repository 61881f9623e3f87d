#include "store/SchemaTexts.h"

// Shifts of the drawer (saleslib/ShiftBooks.h), numbered from 1 without a gap. What was paid, taken
// back and topped up belongs to the shift that was open then, whatever the clock says. A bill keeps
// how much of it stayed in the drawer, for a return lowers what was due. What is closed stays.
const char* const kShiftTables = R"(
create table shift (
  id          integer primary key,
  opened      datetime not null,
  opened_by   integer not null,
  opened_name text not null,
  cash_float  currency not null,
  closed      datetime,
  closed_by   integer,
  closed_name text
);
create index shift_open on shift (id) where closed is null;      -- at each payment
create table shift_cash (
  id          integer primary key autoincrement,
  shift       integer not null,
  time        datetime not null,
  operator_id integer not null,
  name        text not null,
  amount      currency not null,  -- below 0: out of the drawer
  reason      text not null
);
create index shift_cash_shift on shift_cash (shift);
create table shift_count (
  shift   integer not null,
  attempt integer not null,       -- from 1
  piece   currency not null,      -- worth of a note or coin
  pieces  integer not null,
  primary key (shift, attempt, piece)
) without rowid;
create table shift_figure (
  shift  integer not null,
  kind   text not null,
  count  integer not null,
  amount currency not null,
  primary key (shift, kind)
) without rowid;

alter table sell add column shift integer;
alter table sell add column cash_kept currency;
alter table un_sell add column shift integer;
alter table cardStored add column shift integer;
create index sell_shift on sell (shift) where shift is not null;
create index un_sell_shift on un_sell (shift) where shift is not null;
create index cardStored_shift on cardStored (shift) where shift is not null;

create trigger shift_changed before update on shift when old.closed is not null begin
  select raise(abort, 'closed shifts are never changed');
end;
create trigger shift_deleted before delete on shift begin
  select raise(abort, 'shifts are never deleted');
end;
create trigger shift_cash_added before insert on shift_cash
  when not exists (select 1 from shift where id = new.shift and closed is null)
begin
  select raise(abort, 'only an open shift moves cash');
end;
create trigger shift_cash_changed before update on shift_cash begin
  select raise(abort, 'what a shift moved is never changed');
end;
create trigger shift_cash_deleted before delete on shift_cash begin
  select raise(abort, 'what a shift moved is never deleted');
end;
create trigger shift_count_added before insert on shift_count
  when not exists (select 1 from shift where id = new.shift and closed is null)
begin
  select raise(abort, 'only an open shift is counted');
end;
create trigger shift_count_changed before update on shift_count begin
  select raise(abort, 'what was counted is never changed');
end;
create trigger shift_count_deleted before delete on shift_count begin
  select raise(abort, 'what was counted is never deleted');
end;
create trigger shift_figure_added before insert on shift_figure
  when not exists (select 1 from shift where id = new.shift and closed is null)
begin
  select raise(abort, 'only an open shift gets figures');
end;
create trigger shift_figure_changed before update on shift_figure begin
  select raise(abort, 'figures of a closed shift are never changed');
end;
create trigger shift_figure_deleted before delete on shift_figure begin
  select raise(abort, 'figures of a closed shift are never deleted');
end;
)";
