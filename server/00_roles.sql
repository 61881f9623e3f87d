-- Run at each opening by whoever may make roles; what is there stays. The shop's books belong to
-- shop_keeper, who logs in nowhere; the tills' roles are members of tills.
do $$
begin
  if not exists (select from pg_roles where rolname = 'shop_keeper') then
    create role shop_keeper nologin createrole;
  end if;
  execute format('revoke all on database %I from public', current_database());
  execute format('grant create, connect on database %I to shop_keeper', current_database());
end $$;
revoke create on schema public from public;
set role shop_keeper;
do $$
begin
  if not exists (select from pg_roles where rolname = 'tills') then
    create role tills nologin;
  end if;
end $$;
reset role;
do $$
begin
  execute format('grant connect on database %I to tills', current_database());
end $$;
