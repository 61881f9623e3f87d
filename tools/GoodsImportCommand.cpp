#include "tools/GoodsImportCommand.h"

#include <algorithm>
#include <chrono>
#include <cstddef>

#include "base/Text.h"
#include "base/Words.h"
#include "shop/GoodsImport.h"
#include "shop/Refusal.h"
#include "shop/TimeLeft.h"

namespace {

constexpr std::size_t kMostShown = 20;  // of each kind, as many as fit on one screen

using std::chrono::steady_clock;

/// A line on the terminal that shows how far the work is, twice a second; in a script's log a line
/// of its own every ten seconds.
class ProgressBar {
 public:
  explicit ProgressBar(Console& console) : console_(console) {}
  ~ProgressBar() {
    if (isShown_ && console_.isTerminal) console_.err << '\n' << std::flush;
  }
  ProgressBar(const ProgressBar&) = delete;
  ProgressBar& operator=(const ProgressBar&) = delete;

  GoOn goOn() {
    return [this](double part) {
      show(part);
      return true;
    };
  }

 private:
  void show(double part) {
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

  Console& console_;
  steady_clock::time_point last_ = steady_clock::now();
  TimeLeft left_{last_};
  bool isShown_ = false;
};

void setColumn(GoodsMapping& mapping, const std::string& wanted) {
  const std::size_t equals = wanted.rfind('=');
  if (equals == std::string::npos)
    throw Refusal(Words::tr("--column 要写成 列名=字段：%1", wanted));
  const std::string heading = trimmed(wanted.substr(0, equals));
  const std::string name = trimmed(wanted.substr(equals + 1));
  const std::optional<GoodsField> field = fieldOfHeading(name);
  if (!field && !name.empty()) throw Refusal(Words::tr("没有“%1”这个字段。", name));
  const auto column = std::ranges::find(mapping.columns, heading, &GoodsMapping::Column::heading);
  if (column == mapping.columns.end()) throw Refusal(Words::tr("表里没有“%1”这一列。", heading));
  mapping.choose(static_cast<std::size_t>(column - mapping.columns.begin()), field);
}

GoodsMapping mappingOf(Connection& connection, const GoodsImportOptions& options,
                       const std::vector<std::string>& headings) {
  GoodsMapping mapping = options.mapping.empty()
                             ? mappingFor(connection, headings)
                             : namedMapping(connection, options.mapping, headings);
  for (const std::string& column : options.columns) setColumn(mapping, column);
  return mapping;
}

void print(const GoodsMapping& mapping, Console& console) {
  console.out << Words::tr("表里的列：") << '\n';
  for (const GoodsMapping::Column& column : mapping.columns) {
    console.out << "  " << column.heading << " → "
                << (column.field ? headingOf(*column.field) : Words::tr("（不读）")) << '\n';
  }
}

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
           Console& console) {
  if (count == 0) return;
  console.out << Words::tr("%1 %2 行：", heading, count) << '\n';
  const std::size_t most = std::min(entries.size(), kMostShown);
  for (std::size_t place = 0; place < most; ++place) {
    console.out << Words::tr("  第 %1 行  %2", entries[place].line, shown(entries[place])) << '\n';
  }
  const auto more = count - static_cast<std::int64_t>(most);
  if (more > 0) console.out << Words::tr("  ……还有 %1 行", more) << '\n';
}

void print(const GoodsPreview& preview, Console& console) {
  const auto article = [](const GoodsPreview::Article& each) {
    return each.itemCode + "  " + each.name + "  ";
  };
  const auto complaint = [](const GoodsPreview::Complaint& each) { return each.reason; };
  print(
      Words::tr("新增"), preview.addedCount, preview.added,
      [&](const auto& each) { return article(each) + each.newPrice; }, console);
  print(
      Words::tr("改动"), preview.changedCount, preview.changed,
      [&](const auto& each) { return article(each) + shownChange(each); }, console);
  if (preview.unchangedCount > 0)
    console.out << Words::tr("不变 %1 行", preview.unchangedCount) << '\n';
  print(Words::tr("可能有错"), preview.doubtCount, preview.doubts, complaint, console);
  print(Words::tr("不能导入"), preview.refusedCount, preview.refused, complaint, console);
}

bool saysYes(Console& console) {
  console.err << Words::tr("要写入吗？（是/否）") << std::flush;
  std::string answer;
  std::getline(console.in, answer);
  answer = asciiLower(trimmed(answer));
  // untranslated: what may be typed in either language
  return answer == "是" || answer == "y" || answer == "yes";
}

/// Whether the sheet is to be written; says why when it is not.
bool isWanted(const GoodsPreview& preview, Console& console) {
  if (!preview.mayBeWritten()) {
    console.err << Words::tr("什么也没有写入：请先改正不能导入的行。") << '\n';
  } else if (!console.isTerminal) {
    console.err << Words::tr("什么也没有写入：看过以后要写入，加上 --yes。") << '\n';
  } else if (saysYes(console)) {
    return true;
  } else {
    console.err << Words::tr("什么也没有写入。") << '\n';
  }
  return false;
}

}  // namespace

int importGoodsSheet(Connection& connection, const GoodsImportOptions& options, Console& console) {
  OpenedSheet sheet = openGoodsSheet(options.sheet);
  const GoodsMapping mapping = mappingOf(connection, options, sheet.headings);
  if (mapping.isGuessed || !options.columns.empty()) print(mapping, console);
  if (!options.isConfirmed) {
    const GoodsPreview preview =
        previewGoods(connection, *sheet.reader, mapping, ProgressBar(console).goOn()).value();
    print(preview, console);
    if (preview.changesNothing()) return 0;
    if (!isWanted(preview, console)) return kNothingWritten;
    sheet = openGoodsSheet(options.sheet);
  }
  if (!options.savedMapping.empty()) saveMapping(connection, options.savedMapping, mapping);
  ProgressBar bar(console);
  const GoodsPreview written =
      importGoods(connection, *sheet.reader, mapping, WriteSlices::Company::kOthers, bar.goOn())
          .value();
  if (options.isConfirmed || !written.mayBeWritten()) print(written, console);
  if (!written.mayBeWritten()) {
    console.err << Words::tr("什么也没有写入：请先改正不能导入的行。") << '\n';
    return kNothingWritten;
  }
  console.out << Words::tr("已导入商品：新增 %1 行，改动 %2 行，不变 %3 行", written.addedCount,
                           written.changedCount, written.unchangedCount)
              << '\n';
  return 0;
}
