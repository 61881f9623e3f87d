#include "saleslib/ShiftBooks.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <utility>

#include "base/Failure.h"
#include "base/NumberText.h"
#include "saleslib/Fields.h"
#include "saleslib/Journal.h"
#include "saleslib/JournalRecords.h"
#include "store/Connection.h"
#include "store/Transaction.h"

namespace {

using Json = nlohmann::json;

std::optional<std::int64_t> firstWhole(Rows rows, const char* column) {
  return rows.next() ? rows.whole(column) : std::nullopt;
}

std::optional<std::int64_t> openShift(Connection& connection) {
  return firstWhole(connection.query("select id from shift where closed is null"), "id");
}

// Each entry tells the whole shift, so that the last one is what the books must be.
void note(Connection& connection, EntryKind kind, std::int64_t shift, Json more = Json::object()) {
  Journal(connection).note(kind, shift, [&] {
    more["shift"] = shiftRecord(connection, shift);
    return more;
  });
}

ShiftHead headOf(const Row& row) {
  return {row.whole("id").value_or(0), row.dateTime("opened").value_or(DateTime()),
          row.text("opened_name"), row.dateTime("closed"), row.text("closed_name")};
}

}  // namespace

Currency CashCount::sum() const {
  Currency sum;
  for (std::size_t kind = 0; kind < pieces.size(); ++kind)
    sum += lineAmount(kCashPieces[kind], pieces[kind], Discount());
  return sum;
}

bool isShiftOpen(Connection& connection) {
  return openShift(connection).has_value();
}

ShiftBooks::ShiftBooks(Connection& connection, Clock clock,
                       std::shared_ptr<const ClsOperator> person)
    : connection_(connection), clock_(std::move(clock)), person_(std::move(person)) {}

const ClsOperator& ShiftBooks::keeper() const {
  ensure(person_ != nullptr, "somebody keeps the books of shifts");
  return *person_;
}

std::optional<std::int64_t> ShiftBooks::openNumber() const {
  return openShift(connection_);
}

bool ShiftBooks::open(Currency cashFloat) {
  ensure(cashFloat >= Currency(), "a drawer holds no less than nothing");
  Transaction opening(connection_);
  if (openNumber()) return false;
  const std::int64_t number =
      1 + firstWhole(connection_.query("select max(id) as id from shift"), "id").value_or(0);
  connection_.run(
      "insert into shift (id, opened, opened_by, opened_name, cash_float) values (?, ?, ?, ?, ?)",
      number, clock_(), keeper().Id(), keeper().Name(), cashFloat);
  note(connection_, EntryKind::kShiftOpened, number);
  opening.commit();
  return true;
}

std::optional<CashMove> ShiftBooks::move(Currency amount, const std::string& reason) {
  ensure(!amount.isZero() && !reason.empty(), "cash is moved for a reason");
  Transaction moving(connection_);
  const std::optional<std::int64_t> number = openNumber();
  if (!number) return std::nullopt;
  const CashMove move{*number, clock_(), keeper().Name(), amount, reason};
  connection_.run(
      "insert into shift_cash (shift, time, operator_id, name, amount, reason)"
      " values (?, ?, ?, ?, ?, ?)",
      *number, move.time, keeper().Id(), move.person, amount, reason);
  note(connection_, EntryKind::kCashMoved, *number,
       {{"amount", generalNumber(amount)}, {"reason", reason}});
  moving.commit();
  return move;
}

bool ShiftBooks::count(const CashCount& counted) {
  ensure(std::ranges::all_of(counted.pieces, [](auto pieces) { return pieces >= 0; }),
         "nobody counts less than nothing");
  Transaction counting(connection_);
  const std::optional<std::int64_t> number = openNumber();
  if (!number) return false;
  const std::int64_t attempt =
      1 + firstWhole(connection_.query("select max(attempt) as n from shift_count where shift = ?",
                                       *number),
                     "n")
              .value_or(0);
  for (std::size_t kind = 0; kind < counted.pieces.size(); ++kind) {
    connection_.run("insert into shift_count (shift, attempt, piece, pieces) values (?, ?, ?, ?)",
                    *number, attempt, kCashPieces[kind], counted.pieces[kind]);
  }
  note(connection_, EntryKind::kShiftCounted, *number, {{"counted", generalNumber(counted.sum())}});
  counting.commit();
  return true;
}

void ShiftBooks::storeFigures(const Shift& shift) const {
  ShiftTakings::each(shift.takings, [&](const char* name, const ShiftSum& sum) {
    connection_.run("insert into shift_figure (shift, kind, count, amount) values (?, ?, ?, ?)",
                    shift.number, name, sum.count, sum.amount);
  });
}

bool ShiftBooks::close() {
  Transaction closing(connection_);
  const std::optional<Shift> shift = current();
  if (!shift || shift->counts == 0) return false;
  storeFigures(*shift);
  connection_.run("update shift set closed = ?, closed_by = ?, closed_name = ? where id = ?",
                  clock_(), keeper().Id(), keeper().Name(), shift->number);
  note(connection_, EntryKind::kShiftClosed, shift->number,
       {{"expected", generalNumber(shift->expected())},
        {"counted", generalNumber(shift->counted.sum())},
        {"over", generalNumber(shift->difference())}});
  closing.commit();
  return true;
}

std::optional<Shift> ShiftBooks::current() const {
  const std::optional<std::int64_t> number = openNumber();
  return number ? find(*number) : std::nullopt;
}

std::optional<Shift> ShiftBooks::find(std::int64_t number) const {
  Rows row = connection_.query("select * from shift where id = ?", number);
  if (!row.next()) return std::nullopt;
  std::optional<Shift> shift(std::in_place);
  static_cast<ShiftHead&>(*shift) = headOf(row);
  shift->cashFloat = money(row, "cash_float");
  shift->takings =
      shift->closed ? closedTakings(connection_, number) : takingsOfShift(connection_, number);
  readMoves(*shift);
  readCount(*shift);
  readJournal(*shift);
  return shift;
}

void ShiftBooks::readMoves(Shift& shift) const {
  Rows rows =
      connection_.query("select * from shift_cash where shift = ? order by id", shift.number);
  while (rows.next()) {
    shift.moves.push_back({shift.number, rows.dateTime("time").value_or(DateTime()),
                           rows.text("name"), money(rows, "amount"), rows.text("reason")});
  }
}

void ShiftBooks::readCount(Shift& shift) const {
  Rows rows = connection_.query(
      "select attempt, piece, pieces from shift_count where shift = ? order by attempt",
      shift.number);
  while (rows.next()) {
    shift.counts = static_cast<int>(rows.whole("attempt").value_or(0));
    const auto* const kind = std::ranges::find(kCashPieces, money(rows, "piece"));
    if (kind != kCashPieces.end())
      shift.counted.pieces[static_cast<std::size_t>(kind - kCashPieces.begin())] =
          whole32(rows, "pieces");
  }
}

void ShiftBooks::readJournal(Shift& shift) const {
  const std::optional<ShiftJournal> part = journalOf(connection_, shift);
  if (!part) return;
  shift.deeds = deedsIn(connection_, *part);
  shift.journalHash = part->lastHash;
}

std::vector<ShiftHead> ShiftBooks::closed(std::size_t most) const {
  std::vector<ShiftHead> shifts;
  Rows rows = connection_.query("select * from shift where closed is not null order by id desc");
  while (shifts.size() < most && rows.next()) shifts.push_back(headOf(rows));
  return shifts;
}
