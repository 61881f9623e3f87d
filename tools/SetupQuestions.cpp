#include "tools/SetupQuestions.h"

#include <algorithm>
#include <filesystem>
#include <functional>
#include <string>

#include "base/NumberText.h"
#include "base/Text.h"
#include "saleslib/ClsRights.h"
#include "saleslib/ClsSysParam.h"
#include "shop/Refusal.h"

namespace {

/// Why a text is no answer; empty when it is one.
using Check = std::function<std::string(const std::string& answer)>;

std::string anything(const std::string&) {
  return {};
}

std::string aFile(const std::string& answer) {
  if (answer.empty() || std::filesystem::is_regular_file(answer)) return {};
  return "没有这个文件，或者不是普通文件。";
}

std::string aBackup(const std::string& answer) {
  return answer.empty() ? "请写备份文件的名字。" : aFile(answer);
}

class Questions {
 public:
  explicit Questions(Console& console) : console_(console) {}

  std::string ask(const std::string& question, const std::string& byDefault,
                  const Check& refusal = anything) {
    for (;;) {
      console_.err << question;
      if (!byDefault.empty()) console_.err << " [" << byDefault << "]";
      console_.err << "：" << std::flush;
      std::string line;
      if (!std::getline(console_.in, line)) throw Refusal("\n没有答完，什么也没有建立。");
      if (!console_.isTerminal) console_.err << '\n';
      std::string answer = trimmed(line);
      if (answer.empty()) answer = byDefault;
      const std::string refused = refusal(answer);
      if (refused.empty()) return answer;
      say(refused);
    }
  }
  /// One of 1 ... most.
  int choose(const std::string& question, int most, int byDefault) {
    return std::stoi(ask(question, std::to_string(byDefault), [most](const std::string& answer) {
      const auto number = parseWhole16(answer);
      if (number && *number >= 1 && *number <= most && std::to_string(*number) == answer)
        return std::string();
      return "请写 1 到 " + std::to_string(most) + "。";
    }));
  }
  void say(const std::string& text) { console_.err << text << '\n'; }
  Console& console() { return console_; }

 private:
  Console& console_;
};

void askParameter(Questions& questions, NewShop& shop, const ClsSysParam::Parameter& parameter) {
  const auto set = shop.parameters.find(parameter.name);
  shop.parameters[parameter.name] = questions.ask(
      parameter.meaning, set == shop.parameters.end() ? "" : set->second,
      [&](const std::string& answer) { return ClsSysParam::refusal(parameter.name, answer); });
}

void askParameters(Questions& questions, NewShop& shop, const std::vector<std::string>& names) {
  for (const ClsSysParam::Parameter& parameter : ClsSysParam().list()) {
    if (std::ranges::find(names, parameter.name) != names.end())
      askParameter(questions, shop, parameter);
  }
}

void askRounding(Questions& questions, NewShop& shop) {
  constexpr NewShop::Rounding kChoices[] = {NewShop::Rounding::kNone, NewShop::Rounding::kJiao,
                                            NewShop::Rounding::kYuan};
  shop.setRounding(kChoices[questions.choose("应收：1 不舍入，2 舍入到角，3 舍入到元", 3, 2) - 1]);
}

void askOperator(Questions& questions, NewShop& shop, const std::string& who, const Check& name) {
  NewOperator person;
  person.number = static_cast<std::int16_t>(shop.operators.size() + 1);
  person.name = questions.ask(
      who + "的姓名，用户编号（登录时输入）是 " + std::to_string(person.number), "", name);
  if (person.name.empty()) return;
  person.password = askNewPassword(questions.console());
  person.rights = shop.operators.empty() ? allRights() : std::vector<std::string>{kRightSell};
  shop.operators.push_back(person);
}

void askGoods(Questions& questions, NewShop& shop) {
  for (const auto& [table, question] : {std::pair("spda", "商品资料的 CSV 文件（不写就没有）"),
                                        std::pair("tmda", "条码和价格的 CSV 文件（不写就没有）")}) {
    const std::string file = questions.ask(question, "", aFile);
    if (!file.empty()) shop.files[table] = file;
  }
  for (;;) {
    TypedGoods goods;
    goods.barcode = questions.ask("商品条码（不写就不再录入）", "");
    if (goods.barcode.empty()) return;
    goods.name = questions.ask("  名称", "");
    goods.price = questions.ask("  零售价", "");
    const std::string refusal = refusalOf(goods);
    refusal.empty() ? shop.goods.push_back(goods) : questions.say(refusal + "这一种没有录入。");
  }
}

/// Goods until they can be brought in, so that a fault in a file does not cost all the answers.
void askGoodsThatFit(Questions& questions, NewShop& shop) {
  for (;;) {
    askGoods(questions, shop);
    const GoodsTrial trial = tryGoods(shop, questions.console().clock);
    for (const std::string& doubt : trial.doubts) questions.say(doubt);
    if (trial.refusal.empty()) {
      questions.say("商品：" + std::to_string(trial.count) + " 个条码");
      return;
    }
    questions.say(trial.refusal + "\n请重新写商品。");
    shop.files.clear();
    shop.goods.clear();
  }
}

}  // namespace

NewShop askForShop(Console& console) {
  Questions questions(console);
  NewShop shop;
  questions.say("全部答完才建立数据文件。直接回车用方括号里的答案；按 Ctrl+D 放弃。");
  constexpr NewShop::From kWays[] = {NewShop::From::kAnswers, NewShop::From::kDemo,
                                     NewShop::From::kBackup};
  shop.from = kWays[questions.choose("1 新店铺，2 演示店铺，3 从备份恢复", 3, 1) - 1];
  if (shop.from == NewShop::From::kBackup) shop.backup = questions.ask("备份文件", "", aBackup);
  if (shop.from != NewShop::From::kAnswers) return shop;
  askParameters(questions, shop, shopTexts());
  askRounding(questions, shop);
  askOperator(questions, shop, "店主", refusalOfName);
  askOperator(questions, shop, "第一位收银员（不写就没有）", [](const std::string& name) {
    return name.empty() ? std::string() : refusalOfName(name);
  });
  askGoodsThatFit(questions, shop);
  askParameters(questions, shop, shopSwitches());
  return shop;
}
