#include "tools/GoodsQuestions.h"

#include <algorithm>
#include <optional>

#include "base/Words.h"
#include "shop/GoodsImport.h"
#include "shop/Refusal.h"
#include "tools/GoodsSheetTexts.h"

namespace {

/// Throws Refusal when goods cannot be read by what is left: it may be the wrong file.
void correctMapping(Questions& questions, GoodsMapping& mapping) {
  for (;;) {
    print(mapping, questions.console().err);
    const std::string change =
        questions.ask(Words::tr("都对就直接回车；不对的写 列名=字段，不读的写 列名="), "");
    if (change.empty()) break;
    try {
      setColumn(mapping, change);
    } catch (const Refusal& refusal) {
      questions.say(refusal.what());
    }
  }
  if (!mapping.fault().empty()) throw Refusal(mapping.fault());
}

/// Nothing when the sheet is not to be used after all.
std::optional<GoodsSheet> askAbout(Questions& questions, const std::string& file) {
  GoodsSheet sheet{file, guessMapping(openGoodsSheet(file).headings), {}};
  const bool needsALook = sheet.mapping.isGuessed || !sheet.mapping.fault().empty();
  if (needsALook) {
    correctMapping(questions, sheet.mapping);
    sheet.mappingName = questions.ask(Words::tr("给这种表起个名字，以后照样读（不写就不记）"), "");
  }
  const GoodsPreview preview =
      previewForNewShop(sheet, ProgressBar(questions.console()).goOn()).value();
  print(preview, questions.console().err);
  if (!preview.mayBeWritten()) throw Refusal(Words::tr("请先改正不能导入的行。"));
  if (questions.choose(Words::tr("这张表"), {Words::tr("用"), Words::tr("不用")}, 0) != 0)
    return std::nullopt;
  return sheet;
}

void askForSheet(Questions& questions, NewShop& shop) {
  for (;;) {
    const std::string file =
        questions.ask(Words::tr("商品表的文件（.xlsx 或 .csv，第一行是列名；不写就没有）"), "");
    if (file.empty()) return;
    try {
      shop.sheet = askAbout(questions, file);
      if (shop.sheet) return;
    } catch (const AnswersEnded&) {
      throw;
    } catch (const Failure& failure) {
      questions.say(failure.what());
    }
  }
}

void askForTyped(Questions& questions, NewShop& shop) {
  for (;;) {
    TypedGoods goods;
    goods.code = questions.ask(Words::tr("商品条码或编码（不写就不再录入）"), "");
    if (goods.code.empty()) return;
    goods.name = questions.ask(Words::tr("  名称"), "");
    goods.unit = questions.ask(Words::tr("  单位"), "");
    goods.price = questions.ask(Words::tr("  零售价"), "");
    goods.stock = questions.ask(Words::tr("  库存（不写就不记）"), "");
    const GoodsPreview tried = tryGoods(goods);
    if (!tried.refused.empty()) {
      questions.say(Words::tr("%1。这一种没有录入。", tried.refused.front().reason));
      continue;
    }
    for (const GoodsPreview::Complaint& doubt : tried.doubts)
      questions.say(Words::tr("请看一看：%1。", doubt.reason));
    shop.add(goods);
  }
}

}  // namespace

void askForGoods(Questions& questions, NewShop& shop) {
  askForSheet(questions, shop);
  askForTyped(questions, shop);
}
