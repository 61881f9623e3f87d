#include "tools/GoodsImportCommand.h"

#include "base/Text.h"
#include "base/Words.h"
#include "shop/GoodsImport.h"
#include "shop/Refusal.h"
#include "tools/GoodsSheetTexts.h"

namespace {

GoodsMapping mappingOf(Connection& connection, const GoodsImportOptions& options,
                       const std::vector<std::string>& headings) {
  GoodsMapping mapping = options.mapping.empty()
                             ? mappingFor(connection, headings)
                             : namedMapping(connection, options.mapping, headings);
  for (const std::string& column : options.columns) setColumn(mapping, column);
  return mapping;
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
  if (mapping.isGuessed || !options.columns.empty()) print(mapping, console.out);
  if (!options.isConfirmed) {
    const GoodsPreview preview =
        previewGoods(connection, *sheet.reader, mapping, ProgressBar(console).goOn()).value();
    print(preview, console.out);
    if (preview.changesNothing()) return 0;
    if (!isWanted(preview, console)) return kNothingWritten;
    sheet = openGoodsSheet(options.sheet);
  }
  if (!options.savedMapping.empty()) saveMapping(connection, options.savedMapping, mapping);
  ProgressBar bar(console);
  const GoodsPreview written =
      importGoods(connection, *sheet.reader, mapping, WriteSlices::Company::kOthers, bar.goOn())
          .value();
  if (options.isConfirmed || !written.mayBeWritten()) print(written, console.out);
  if (!written.mayBeWritten()) {
    console.err << Words::tr("什么也没有写入：请先改正不能导入的行。") << '\n';
    return kNothingWritten;
  }
  console.out << Words::tr("已导入商品：新增 %1 行，改动 %2 行，不变 %3 行", written.addedCount,
                           written.changedCount, written.unchangedCount)
              << '\n';
  return 0;
}
