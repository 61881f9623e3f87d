#include "shop/GoodsStage.h"

#include <algorithm>
#include <optional>
#include <random>
#include <utility>

#include "base/Words.h"
#include "saleslib/Journal.h"
#include "shop/Refusal.h"
#include "store/Connection.h"
#include "store/FragmentIndex.h"
#include "store/StoreError.h"
#include "store/Transaction.h"

namespace {

constexpr std::size_t kRunRows = 20'000;  // some 30 MiB while they are sorted

/// In the order in which they are written: a barcode follows its article.
std::array<StagedTable, 3> stagedTables(Connection& connection) {
  const auto staged = [&](const char* table) {
    return StagedTable(connection, tableNamed(table, {}));
  };
  return {staged("spda"), staged("stock"), staged("tmda")};
}

std::int64_t newToken() {
  std::random_device device;
  return static_cast<std::int64_t>(device()) << 31 | device() >> 1;
}

bool isWhole(Connection& connection) {
  return connection.query("select 1 from goods_in where whole = 1").next();
}

/// Nothing when no sheet counts.
std::optional<double> partWritten(Connection& connection) {
  Rows sheet = connection.query("select staged, written from goods_in where whole = 1");
  if (!sheet.next()) return std::nullopt;
  const double staged = sheet.number("staged").value();
  return staged > 0 ? sheet.number("written").value() / staged : 1;
}

void removeAll(WriteSlices& slices, std::array<StagedTable, 3>& tables) {
  slices.run([&](int rows) {
    return std::ranges::any_of(tables, [&](StagedTable& table) { return table.remove(rows) > 0; });
  });
}

}  // namespace

GoodsStage::GoodsStage(Connection& connection, WriteSlices::Company company)
    : connection_(connection),
      slices_(connection, company),
      tables_(stagedTables(connection)),
      token_(newToken()) {
  Transaction beginning(connection_);
  if (goodsWaiting(connection_) > 0) throw Refusal(Words::tr("上一次导入还没有写完，请稍后再试。"));
  connection_.run("delete from goods_in");
  connection_.run("insert into goods_in (id, token) values (1, ?)", token_);
  beginning.commit();
  removeAll(slices_, tables_);
}

// What stays is taken away by the next import.
GoodsStage::~GoodsStage() {
  if (isSealed_) return;
  try {
    requireOwn(0);
    removeAll(slices_, tables_);
    connection_.run("delete from goods_in where token = ?", token_);
  } catch (const Failure&) {
    return;
  }
}

void GoodsStage::add(GoodsToWrite goods) {
  const auto keep = [this](std::size_t table, std::vector<GoodsToWrite::TableRow>& rows) {
    buffered_ += rows.size();
    std::ranges::move(rows, std::back_inserter(buffers_[table]));
  };
  keep(0, goods.master);
  keep(1, goods.stock);
  keep(2, goods.barcodes);
  const std::string& category = goods.category;
  if (!category.empty() && knownCategories_.insert(category).second) {
    categories_.push_back(category);
  }
  if (buffered_ >= kRunRows) flush();
}

void GoodsStage::flush() {
  for (std::size_t table = 0; table < kTables; ++table) {
    auto& buffer = buffers_[table];
    std::ranges::sort(buffer);
    auto next = buffer.begin();
    slices_.run([&](int rows) {
      const auto count = std::min<std::ptrdiff_t>(rows, buffer.end() - next);
      requireOwn(count);
      for (const auto end = next + count; next != end; ++next) {
        tables_[table].add(run_, std::move(*next));
      }
      return next != buffer.end();
    });
    buffer.clear();
  }
  buffered_ = 0;
  ++run_;
}

void GoodsStage::seal() {
  flush();
  Transaction sealing(connection_);
  requireOwn(0);
  for (const std::string& category : categories_) {
    connection_.run(
        "insert into SP_LB (SPLBMC) select ?1 where not exists"
        " (select 1 from SP_LB where SPLBMC = ?1)",
        category);
  }
  connection_.run("update goods_in set whole = 1");
  Rows rows = connection_.query("select staged from goods_in");
  Journal(connection_)
      .note(EntryKind::kImported, "goods", {{"rows", rows.next() ? rows.text("staged") : ""}});
  sealing.commit();
  isSealed_ = true;
}

void GoodsStage::requireOwn(std::int64_t staged) {
  const std::int64_t known = connection_.run(
      "update goods_in set staged = staged + ? where token = ? and whole = 0", staged, token_);
  if (known == 0) throw Refusal(Words::tr("有另一个导入开始了，这一个什么也没有写入。"));
}

std::int64_t goodsWaiting(Connection& connection) {
  Rows rows = connection.query("select staged - written as waiting from goods_in where whole = 1");
  return rows.next() ? rows.whole("waiting").value() : 0;
}

void finishGoods(Connection& connection, WriteSlices::Company company,
                 const std::function<bool(double part)>& goOn) {
  std::array<StagedTable, 3> tables = stagedTables(connection);
  const auto moveSome = [&](int rows) {
    if (!isWhole(connection)) return false;
    for (StagedTable& table : tables) {
      const std::int64_t moved = table.move(rows);
      if (moved == 0) continue;
      updateFragmentIndexInSteps(connection);
      connection.run("update goods_in set written = written + ?", moved);
      return true;
    }
    connection.run("delete from goods_in");
    return false;
  };
  WriteSlices(connection, company).run(moveSome, [&] {
    const std::optional<double> part = partWritten(connection);
    return part && goOn(*part);
  });
}
