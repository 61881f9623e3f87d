-- Whether commits wait for a second server, noted at the tills' contacts, so that the second one
-- knows it of the first when that is gone. Written when it changes only: tills do not wait for it.
create function shop.note_awaited() returns trigger language plpgsql as $$
declare
  awaits text := current_setting('synchronous_standby_names');
begin
  if awaits is distinct from (select value from shop.setting where name = 'awaits') then
    insert into shop.setting values ('awaits', awaits)
      on conflict (name) do update set value = excluded.value;
  end if;
  return null;
end $$;
create trigger till_in_contact after update of last_contact on shop.till
  for each statement execute function shop.note_awaited();
revoke all on all functions in schema shop from public;
