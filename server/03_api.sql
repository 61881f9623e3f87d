-- What tills may call. Every answer is a write of the till's row, so that an answer that a fail-over
-- would forget is not given: it waits for whatever the server's commits wait for. The SQLSTATE of a
-- refusal says what it is about: TL001 who asks, TL002 to TL004 that the till has another history
-- in mind than the server, TL005 that too many histories began, TL006 that more of one is wanted.

create function shop.caller(asking integer) returns shop.till language plpgsql as $$
declare
  t shop.till;
begin
  select * into t from shop.till where till = asking for update;
  if not found or session_user <> 'till_' || asking or t.revoked is not null then
    raise exception using errcode = 'TL001', message = 'not this till';
  end if;
  return t;
end $$;

create function shop.enrolled_caller(asking integer) returns shop.till language plpgsql as $$
declare
  t shop.till := shop.caller(asking);
begin
  if t.enrolled is null or t.code_until is not null then
    raise exception using errcode = 'TL001', message = 'not enrolled';
  end if;
  return t;
end $$;

create function api.hello(asking integer, pending bigint, clock bigint, version text,
                          out epoch integer, out applied bigint, out hash text)
language plpgsql security definer set search_path = shop, pg_temp as $$
declare
  t shop.till := shop.enrolled_caller(asking);
begin
  update shop.till set last_contact = now(), told_pending = hello.pending,
    told_clock = to_timestamp(hello.clock), version = hello.version where till = asking;
  epoch := t.epoch;
  applied := t.applied;
  hash := t.hash;
end $$;

-- `before` is the hash of the entry before the first of the facts; behind gives what the server has.
create function api.put(asking integer, its_epoch integer, before text, pending bigint, clock bigint,
                        facts jsonb, out applied bigint, out hash text)
language plpgsql security definer set search_path = shop, pg_temp as $$
declare
  t shop.till := shop.enrolled_caller(asking);
  each record;
  f shop.fact;
  highest bigint := t.highest_bill;
begin
  if t.epoch <> its_epoch then
    raise exception using errcode = 'TL002', message = 'another epoch';
  end if;
  if facts @@ '$[*].kind starts with "books" || $[*].kind starts with "stock" ||
               $[*].kind starts with "member"' then
    perform shop.in_turn();
  end if;
  for each in select * from jsonb_to_recordset(facts)
      as x(seq bigint, time text, till bigint, operator bigint, approver bigint, kind text,
           touches text, body text, hash text) order by x.seq loop
    if each.seq > t.applied then
      if each.seq <> t.applied + 1 then
        raise exception using errcode = 'TL003', message = 'a gap before ' || each.seq;
      end if;
      if before <> t.hash then
        raise exception using errcode = 'TL004', message = 'another history before ' || each.seq;
      end if;
      insert into shop.fact (till, epoch, seq, time, entry_till, operator, approver, kind, touches,
                             body, hash)
        values (asking, t.epoch, each.seq, each.time, each.till, each.operator, each.approver,
                each.kind, each.touches, each.body, each.hash)
        returning * into f;
      perform shop.take(f);
      t.applied := each.seq;
      t.hash := each.hash;
      if each.kind in ('bill_opened', 'bill_settled', 'bill_completed') and
         each.touches ~ '^\d{1,10}$' then
        highest := greatest(highest, each.touches::bigint);
      end if;
    end if;
    before := each.hash;
  end loop;
  applied := t.applied;
  hash := t.hash;
  update shop.till set applied = put.applied, hash = put.hash, highest_bill = highest,
    last_contact = now(), told_pending = put.pending, told_clock = to_timestamp(put.clock)
    where till = asking;
end $$;

-- The till's history is not the server's, but they have these entries to compare: it goes on behind
-- the last that both have. The same question again gets the same answer, as long as nothing came of
-- it yet. Who shares none of them is asked for the entries before (TL006), so that nothing that both
-- have comes twice. Who asks a third time in a day has one file on two machines; joining anew ends that.
create function api.new_epoch(asking integer, its_epoch integer, seqs bigint[], hashes text[],
                              out epoch integer, out highest_bill bigint)
language plpgsql security definer set search_path = shop, pg_temp as $$
declare
  t shop.till := shop.enrolled_caller(asking);
  common_seq bigint := 0;
  common_hash text := '';
begin
  select f.seq, f.hash into common_seq, common_hash
    from unnest(seqs, hashes) as own(seq, hash)
    join shop.fact f on f.till = asking and f.seq = own.seq and f.hash = own.hash
    order by f.seq desc limit 1;
  if common_seq is null and (select min(seq) from unnest(seqs) as own(seq)) > 1 then
    raise exception using errcode = 'TL006', message = 'earlier entries are wanted';
  end if;
  common_seq := coalesce(common_seq, 0);
  common_hash := coalesce(common_hash, '');
  highest_bill := t.highest_bill;
  if t.applied = common_seq and t.hash = common_hash and exists (
       select from shop.epoch e where e.till = asking and e.epoch = t.epoch
         and e.from_epoch = its_epoch and e.from_seq = common_seq) then
    epoch := t.epoch;
    update shop.till set last_contact = now() where till = asking;
    return;
  end if;
  if (select count(*) from shop.epoch e
      where e.till = asking and e.begun > greatest(now() - interval '1 day', t.enrolled)) >= 2 then
    raise exception using errcode = 'TL005', message = 'one file on two machines';
  end if;
  epoch := greatest(t.epoch, its_epoch) + 1;
  insert into shop.epoch (till, epoch, from_epoch, from_seq, from_hash)
    values (asking, epoch, its_epoch, common_seq, common_hash);
  update shop.till set epoch = new_epoch.epoch, applied = common_seq, hash = common_hash,
    last_contact = now() where till = asking;
end $$;

-- The till changes the code that its owner typed for a password that nobody has seen. Whether the
-- file of a till that was here before is still the same one, its next upload shows.
create function api.enrol(asking integer, verifier text, out epoch integer, out highest_bill bigint,
                          out authority text)
language plpgsql security definer set search_path = shop, pg_temp as $$
declare
  t shop.till := shop.caller(asking);
begin
  if t.code_until is null or t.code_until < now() then
    raise exception using errcode = 'TL001', message = 'no code waits for this till';
  end if;
  if verifier not like 'SCRAM-SHA-256$%' then
    raise exception using errcode = 'TL001', message = 'not a verifier';
  end if;
  execute format('alter role %I password %L valid until %L', session_user, verifier, 'infinity');
  update shop.till set enrolled = now(), code_until = null, last_contact = now() where till = asking;
  epoch := t.epoch;
  highest_bill := t.highest_bill;
  authority := coalesce((select value from shop.setting where name = 'authority'), '');
end $$;

revoke all on all functions in schema api, shop from public;
grant usage on schema api to tills;
grant execute on all functions in schema api to tills;
