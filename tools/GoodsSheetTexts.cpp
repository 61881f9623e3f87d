#include "tools/GoodsSheetTexts.h"

#include <algorithm>
#include <cstddef>

#include "base/Text.h"
#include "base/Words.h"
#include "shop/Refusal.h"

using std::chrono::steady_clock;

namespace {

constexpr std::size_t kMostShown = 20;  // of each kind, as many as fit on one screen

std::string shownChange(const GoodsPreview::Article& article) {
  std::string text;
  if (!article.oldPrice.empty())
    text = Words::tr("零售价 %1 → %2", article.oldPrice, article.newPrice);
  for (const std::string& field : article.otherFields)
    text.append(text.empty() ? "" : Words::tr("、")).append(field);
  return text;
}

template <class Entries, class Shown>
void print(const std::string& heading, std::int64_t count, const Entries& entries, Shown shown,
           std::ostream& out) {
  if (count == 0) return;
  out << Words::tr("%1 %2 行：", heading, count) << '\n';
  const std::size_t most = std::min(entries.size(), kMostShown);
  for (std::size_t place = 0; place < most; ++place) {
    out << Words::tr("  第 %1 行  %2", entries[place].line, shown(entries[place])) << '\n';
  }
  const auto more = count - static_cast<std::int64_t>(most);
  if (more > 0) out << Words::tr("  ……还有 %1 行", more) << '\n';
}

}  // namespace

void ProgressBar::show(double part) {
  using namespace std::chrono_literals;
  const auto now = steady_clock::now();
  if (now - last_ < (console_.isTerminal ? 500ms : 10s)) return;
  last_ = now;
  isShown_ = true;
  constexpr std::size_t kWidth = 30;
  const auto done = static_cast<std::size_t>(part * kWidth);
  if (console_.isTerminal) {
    console_.err << "\r[" << std::string(done, '#') << std::string(kWidth - done, '-') << "] "
                 << left_.text(part, now) << "    " << std::flush;
  } else {
    console_.err << left_.text(part, now) << std::endl;
  }
}

void setColumn(GoodsMapping& mapping, const std::string& wanted) {
  const std::size_t equals = wanted.rfind('=');
  if (equals == std::string::npos)
    throw Refusal(Words::tr("要写成 列名=字段，写的是“%1”。", wanted));
  const std::string heading = trimmed(wanted.substr(0, equals));
  const std::string name = trimmed(wanted.substr(equals + 1));
  const std::optional<GoodsField> field = fieldOfHeading(name);
  if (!field && !name.empty()) throw Refusal(Words::tr("没有“%1”这个字段。", name));
  const auto column = std::ranges::find(mapping.columns, heading, &GoodsMapping::Column::heading);
  if (column == mapping.columns.end()) throw Refusal(Words::tr("表里没有“%1”这一列。", heading));
  mapping.choose(static_cast<std::size_t>(column - mapping.columns.begin()), field);
}

void print(const GoodsMapping& mapping, std::ostream& out) {
  out << Words::tr("表里的列：") << '\n';
  for (const GoodsMapping::Column& column : mapping.columns) {
    out << "  " << column.heading << " → "
        << (column.field ? headingOf(*column.field) : Words::tr("（不读）")) << '\n';
  }
}

void print(const GoodsPreview& preview, std::ostream& out) {
  const auto article = [](const GoodsPreview::Article& each) {
    return each.itemCode + "  " + each.name + "  ";
  };
  const auto complaint = [](const GoodsPreview::Complaint& each) { return each.reason; };
  print(
      Words::tr("新增"), preview.addedCount, preview.added,
      [&](const auto& each) { return article(each) + each.newPrice; }, out);
  print(
      Words::tr("改动"), preview.changedCount, preview.changed,
      [&](const auto& each) { return article(each) + shownChange(each); }, out);
  if (preview.unchangedCount > 0) out << Words::tr("不变 %1 行", preview.unchangedCount) << '\n';
  print(Words::tr("可能有错"), preview.doubtCount, preview.doubts, complaint, out);
  print(Words::tr("不能导入"), preview.refusedCount, preview.refused, complaint, out);
}
