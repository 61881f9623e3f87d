#include "takings/ShiftPaper.h"

#include <algorithm>
#include <utility>

#include "base/Gbk.h"
#include "base/NumberText.h"
#include "saleslib/ClsSysParam.h"

// Papers are Chinese whatever the screens speak.

namespace {

constexpr std::size_t kNameColumns = 12;
constexpr std::size_t kCountColumns = 8;
constexpr std::size_t kHashGroup = 4;

std::string padded(const std::string& text, std::size_t columns) {
  const std::size_t width = gbk::width(text);
  return text + std::string(columns > width ? columns - width : 0, ' ');
}

/// Lines of a sheet of that many columns.
class Sheet {
 public:
  explicit Sheet(int columns) : columns_(static_cast<std::size_t>(columns)) {}

  void line(std::string text = {}) { lines_.push_back(std::move(text)); }
  /// A text of any length, on as many lines as it takes.
  void wrapped(std::string text) {
    while (gbk::width(text) > columns_) {
      const std::string first = gbk::cut(text, columns_);
      line(first);
      text = text.substr(first.size());
    }
    line(std::move(text));
  }
  void title(const std::string& text) { line(gbk::centred(text, columns_)); }
  void rule() { line(std::string(columns_, '-')); }
  /// What does not fit is cut on the left side: an amount is always whole.
  void row(const std::string& left, const std::string& right) {
    const std::size_t width = gbk::width(right) + 1;
    const std::size_t room = columns_ > width ? columns_ - width : 0;
    line(padded(gbk::cut(left, room), room) + " " + right);
  }
  void amount(const std::string& name, Currency amount) { row(name, twoDecimals(amount)); }
  void sum(const std::string& name, const ShiftSum& sum, const char* unit = "笔") {
    row(counted(name, sum.count, unit), twoDecimals(sum.amount));
  }
  void count(const std::string& name, std::int64_t count) { line(counted(name, count, "次")); }
  /// In groups, which eyes compare more easily.
  void hash(const std::string& hash) {
    const std::size_t most = (columns_ + 1) / (kHashGroup + 1) * kHashGroup;
    for (std::size_t at = 0; at < hash.size(); at += most) {
      std::string text;
      for (std::size_t group = at; group < std::min(hash.size(), at + most); group += kHashGroup)
        text += (text.empty() ? "" : " ") + hash.substr(group, kHashGroup);
      line(text);
    }
  }
  ShiftPaper paper(std::string name) && { return {std::move(name), std::move(lines_)}; }

 private:
  static std::string counted(const std::string& name, std::int64_t count, const char* unit) {
    const std::string text = std::to_string(count) + " " + unit;
    const std::size_t width = gbk::width(text);
    return padded(name, kNameColumns) +
           std::string(kCountColumns > width ? kCountColumns - width : 0, ' ') + text;
  }

  std::size_t columns_;
  std::vector<std::string> lines_;
};

void addHead(Sheet& sheet, const Shift& shift, ShiftPaperKind kind, const DateTime& printed,
             const ClsSysParam& shop) {
  sheet.title(shop.ShopName());
  const std::string number = "第 " + std::to_string(shift.number) + " 班";
  sheet.title((kind == ShiftPaperKind::kReading ? "班次读数 " : "结班表 ") + number);
  if (kind == ShiftPaperKind::kReading) sheet.title("（没有结班）");
  if (kind == ShiftPaperKind::kReprint) sheet.title("（重打）");
  sheet.line("开班 " + generalText(shift.opened));
  sheet.line("     " + shift.openedBy);
  if (shift.closed) {
    sheet.line("结班 " + generalText(*shift.closed));
    sheet.line("     " + shift.closedBy);
  }
  if (kind != ShiftPaperKind::kClosed) sheet.line("打印 " + generalText(printed));
  sheet.rule();
}

void addTakings(Sheet& sheet, const Shift& shift, const ClsSysParam& shop) {
  const ShiftTakings& takings = shift.takings;
  sheet.sum("单据", takings.bills);
  for (const TenderKind& kind : tenderKinds()) {
    const ShiftSum& sum = takings.of(kind.tender);
    if (shop.Takes(kind) || sum.count > 0) sheet.sum("  " + std::string(kind.name), sum);
  }
  sheet.sum("充值收现金", takings.topUps);
  sheet.sum("退货退现金", takings.refunds);
  sheet.sum("存入现金", takings.cashIn);
  sheet.sum("取出现金", takings.cashOut);
  for (const CashMove& move : shift.moves)
    sheet.row("  " + shortTime(move.time) + " " + move.reason, twoDecimals(move.amount));
  sheet.rule();
}

// What no takings show: the owner asks about these, and looks them up in the journal.
void addDeeds(Sheet& sheet, const ShiftDeeds& deeds) {
  sheet.count("不收款开钱箱", deeds.drawerOpened);
  sheet.sum("撤消单据", deeds.cancelled);
  sheet.sum("删除商品行", deeds.deleted, "行");
  sheet.count("授权", deeds.approvals);
  sheet.rule();
}

void addCount(Sheet& sheet, const Shift& shift) {
  for (std::size_t kind = 0; kind < kCashPieces.size(); ++kind) {
    const std::int32_t pieces = shift.counted.pieces[kind];
    if (pieces == 0) continue;
    sheet.amount("  " + generalNumber(kCashPieces[kind]) + " 元 × " + std::to_string(pieces),
                 lineAmount(kCashPieces[kind], pieces, Discount()));
  }
  sheet.amount("清点" + (shift.counts > 1 ? "（第 " + std::to_string(shift.counts) + " 次）" : ""),
               shift.counted.sum());
  const Currency over = shift.difference();
  sheet.amount(over.isZero() ? "相符" : over > Currency() ? "长款" : "短款", over);
}

}  // namespace

ShiftPaper shiftPaper(const Shift& shift, ShiftPaperKind kind, const DateTime& printed,
                      const ClsSysParam& shop, int columns) {
  Sheet sheet(columns);
  addHead(sheet, shift, kind, printed, shop);
  addTakings(sheet, shift, shop);
  if (shift.deeds) addDeeds(sheet, *shift.deeds);
  sheet.amount("备用金", shift.cashFloat);
  sheet.amount("钱箱应有", shift.expected());
  if (shift.closed) addCount(sheet, shift);
  sheet.rule();
  if (!shift.journalHash.empty()) {
    sheet.line("日志校验值");
    sheet.hash(shift.journalHash);
  }
  sheet.line();
  sheet.line("签名");
  for (int feed = 0; feed < 4; ++feed) sheet.line();
  return std::move(sheet).paper(kind == ShiftPaperKind::kReading ? "班次读数" : "结班表");
}

ShiftPaper cashSlip(const CashMove& move, const ClsSysParam& shop, int columns) {
  const bool isOut = move.amount < Currency();
  Sheet sheet(columns);
  sheet.title(shop.ShopName());
  sheet.title(isOut ? "取出现金" : "存入现金");
  sheet.line("第 " + std::to_string(move.shift) + " 班 " + generalText(move.time));
  sheet.line("收银员 " + move.person);
  sheet.amount("金额", isOut ? -move.amount : move.amount);
  sheet.wrapped("原因 " + move.reason);
  sheet.line();
  sheet.line("签名");
  for (int feed = 0; feed < 4; ++feed) sheet.line();
  return std::move(sheet).paper(isOut ? "取款单" : "存款单");
}
