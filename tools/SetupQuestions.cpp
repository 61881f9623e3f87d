#include "tools/SetupQuestions.h"

#include <algorithm>
#include <filesystem>
#include <string>

#include "base/Words.h"
#include "saleslib/ClsRights.h"
#include "saleslib/ClsSysParam.h"
#include "tools/GoodsQuestions.h"
#include "tools/Questions.h"

namespace {

std::string aBackup(const std::string& answer) {
  if (answer.empty()) return Words::tr("请写备份文件的名字。");
  std::error_code unreadable;
  if (std::filesystem::is_regular_file(answer, unreadable)) return {};
  return Words::tr("没有这个文件，或者不是普通文件。");
}

void choose(Questions& questions, const TillSetup::Choice& choice) {
  choice.choose(questions.choose(choice.text, choice.answers, choice.chosen));
}

void askForDevices(Questions& questions, TillSetup& till) {
  enum { kGoOn, kTry, kAgain };
  for (std::size_t next = kAgain; next != kGoOn;) {
    if (next == kAgain)
      for (const TillSetup::Choice& device : till.devices()) choose(questions, device);
    if (next == kTry)
      for (const std::string& line : till.tryDevices()) questions.say(line);
    next = questions.choose(
        "", {Words::tr("往下走"), Words::tr("试一试打印机、钱箱和客显"), Words::tr("重新选")},
        kGoOn);
  }
}

void askForTexts(Questions& questions, NewShop& shop) {
  const auto all = ClsSysParam().list();
  for (const std::string& name : shopTexts()) {
    const auto parameter = std::ranges::find(all, name, &ClsSysParam::Parameter::name);
    const auto set = shop.parameters.find(name);
    shop.parameters[name] =
        questions.ask(parameter->meaning, set == shop.parameters.end() ? "" : set->second,
                      [&](const std::string& answer) {
                        if (answer.empty() && name == shopTexts().front())
                          return std::string(Words::tr("请写店名，它是小票的第一行。"));
                        return ClsSysParam::refusal(name, answer);
                      });
  }
}

void askForRounding(Questions& questions, NewShop& shop) {
  shop.setRounding(static_cast<NewShop::Rounding>(questions.choose(
      Words::tr("应收"), {Words::tr("不舍入"), Words::tr("舍入到角"), Words::tr("舍入到元")}, 1)));
}

void askForOperator(Questions& questions, NewShop& shop, const std::string& who,
                    std::vector<std::string> rights, const Questions::Check& name) {
  NewOperator person;
  person.number = static_cast<std::int16_t>(shop.operators.size() + 1);
  person.name = questions.ask(
      Words::tr("%1的姓名，用户编号（登录时输入）是 %2", who, person.number), "", name);
  if (person.name.empty()) return;
  person.password = askNewPassword(questions.console(), Words::tr("密码："));
  person.rights = std::move(rights);
  shop.operators.push_back(person);
}

void askForPeople(Questions& questions, NewShop& shop) {
  askForOperator(questions, shop, Words::tr("店主"), allRights(), refusalOfName);
  askForOperator(
      questions, shop, Words::tr("第一位收银员（不写就没有）"), {kRightSell},
      [](const std::string& name) { return name.empty() ? std::string() : refusalOfName(name); });
}

void ask(Questions& questions, NewShop& shop, const SetupQuestion& question) {
  const std::string& offered = shop.answerTo(question);
  if (question.answers.empty()) {
    return shop.answer(question,
                       questions.ask(Words::tr(question.text), offered, question.refusal));
  }
  std::vector<std::string> texts;
  for (const SetupQuestion::Answer& answer : question.answers)
    texts.push_back(Words::tr(answer.text));
  const auto sensible = std::ranges::find(question.answers, offered, &SetupQuestion::Answer::value);
  const auto place = sensible == question.answers.end() ? 0 : sensible - question.answers.begin();
  shop.answer(question, question
                            .answers[questions.choose(Words::tr(question.text), texts,
                                                      static_cast<std::size_t>(place))]
                            .value);
}

}  // namespace

NewShop askForShop(Console& console, TillSetup* till) {
  Questions questions(console);
  NewShop shop;
  if (till != nullptr) till->load(shop);
  questions.say(Words::tr("全部答完才建立店铺。直接回车用方括号里的答案；按 Ctrl+D 放弃。"));
  shop.from = static_cast<NewShop::From>(questions.choose(
      "", {Words::tr("新店铺"), Words::tr("演示店铺"), Words::tr("从备份恢复")}, 0));
  if (shop.from == NewShop::From::kBackup)
    shop.backup = questions.ask(Words::tr("备份文件"), "", aBackup);
  if (till != nullptr) askForDevices(questions, *till);
  if (shop.from == NewShop::From::kAnswers) {
    askForTexts(questions, shop);
    askForRounding(questions, shop);
    askForPeople(questions, shop);
    askForGoods(questions, shop);
    for (const SetupQuestion& question : setupQuestions())
      if (question.isOfShop() || till != nullptr) ask(questions, shop, question);
  }
  if (till != nullptr) choose(questions, till->colours());
  return shop;
}
