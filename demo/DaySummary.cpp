#include "demo/DaySummary.h"

#include <fstream>
#include <sstream>

#include "base/NumberText.h"
#include "saleslib/Tenders.h"
#include "store/Connection.h"
#include "store/DataFile.h"

namespace {

std::map<std::string, double> stockOf(Connection& shop) {
  std::map<std::string, double> stock;
  Rows rows = shop.query("select spbm, quantity from stock");
  while (rows.next()) stock[rows.text("spbm")] = rows.number("quantity").value_or(0);
  return stock;
}

/// One line of text per settled bill; adds the amounts up.
int listBills(Connection& shop, std::ostream& text, Currency& takings) {
  int bills = 0;
  Rows rows = shop.query("select * from sell where state = 1 order by id");
  while (rows.next()) {
    ++bills;
    const Currency amount = rows.currency("amount").value_or(Currency());
    takings += amount;
    text << rows.text("sell_time") << "  流水号 " << rows.text("id") << "  "
         << generalNumber(rows.number("quantity").value_or(0)) << " 件  应收 "
         << twoDecimals(amount);
    for (const TenderKind& kind : tenderKinds()) {
      const Currency paid = rows.currency(kind.column).value_or(Currency());
      if (kind.parameter == nullptr || !paid.isZero())
        text << "  " << kind.name << " " << twoDecimals(paid);
    }
    text << "\n";
  }
  return bills;
}

/// The totals row of an export and the number of lines above it, as the data file has them.
std::pair<std::string, int> exportedTotals(Connection& shop) {
  std::int64_t quantity = 0;
  Currency money;
  int lines = 0;
  Rows rows = shop.query("select amount, money from sellProducts");
  while (rows.next()) {
    ++lines;
    quantity += wholeHalfEven(rows.number("amount").value_or(0));
    money += rows.currency("money").value_or(Currency());
  }
  return {"\"合计\",,,,," + std::to_string(quantity) + ",,," + generalNumber(money) +
              ",,\"***\",\"***\",,",
          lines};
}

bool exportAgrees(Connection& shop, const std::filesystem::path& exported) {
  const auto [totals, lines] = exportedTotals(shop);
  std::ifstream file(exported);
  int found = 0;
  std::string line, last;
  while (std::getline(file, line)) {
    if (line.ends_with('\r')) line.pop_back();
    if (line.starts_with("20")) ++found;
    last = line;
  }
  return found == lines && last == totals;
}

}  // namespace

DaySummary::DaySummary(const std::filesystem::path& dataFile)
    : dataFile_(dataFile), stockBefore_(stockOf(*openDataFile({dataFile, kBuiltInPassword}))) {}

void DaySummary::compareExport(const std::filesystem::path& exported) {
  const auto shop = openDataFile({dataFile_, kBuiltInPassword});
  if (!exportAgrees(*shop, exported)) faults_ += "导出的销售明细与数据文件不符\n";
}

bool DaySummary::write(const std::filesystem::path& file, int settledBills) const {
  const auto shop = openDataFile({dataFile_, kBuiltInPassword});
  std::ostringstream faults;
  faults << faults_;
  std::ofstream text(file);
  text << "本日单据\n\n";
  Currency takings;
  const int bills = listBills(*shop, text, takings);
  if (bills != settledBills) faults << "应有 " << settledBills << " 张单据\n";

  Rows open = shop->query("select count(*) as n from sell where state <> 1");
  if (open.next() && *open.whole("n") != 0) faults << "有未结束的单据\n";

  std::map<std::string, double> expected = stockBefore_;
  Rows sold = shop->query("select bm, sum(amount * ratio) as n from sellProducts group by bm");
  while (sold.next()) {
    double& stock = expected[sold.text("bm")];
    stock = roundedQuantity(stock - sold.number("n").value_or(0));
  }
  const auto after = stockOf(*shop);
  for (const auto& [code, quantity] : expected) {
    const auto found = after.find(code);
    const double now = found == after.end() ? 0 : found->second;
    if (roundedQuantity(now) != quantity) faults << "库存不符：" << code << "\n";
  }

  text << "\n共 " << bills << " 张单据，应收合计 " << twoDecimals(takings) << " 元\n"
       << (faults.str().empty() ? "账目、库存与导出的销售明细全部相符，四次作弊都看得出来\n"
                                : "不符之处：\n" + faults.str());
  return faults.str().empty();
}
