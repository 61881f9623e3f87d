#include "setup/SettingsFile.h"

#include <QCoreApplication>
#include <vector>

#include "app/ClsPosSet.h"
#include "platform/IniFile.h"
#include "shop/NewShop.h"
#include "shop/Refusal.h"

void readSettings(const IniFile& file, ClsPosSet& till, NewShop& shop) {
  till.LoadSet(file);
  // untranslated: a setting as it is stored
  if (till.printAmount.empty()) till.printAmount = "直接打印1联";
  for (const SetupQuestion& question : setupQuestions()) {
    if (question.isOfShop()) continue;
    if (const auto value = file.read(question.section, question.key)) shop.answer(question, *value);
  }
}

void storeSettings(const IniFile& file, const ClsPosSet& till, const NewShop& shop) {
  till.SaveSet(file);
  ClsPosSet stored;
  stored.LoadSet(file);
  std::vector<IniFile::Entry> entries;
  for (const SetupQuestion& question : setupQuestions()) {
    if (question.isOfShop() || shop.from != NewShop::From::kAnswers) continue;
    const std::string& answer = shop.answerTo(question);
    if (!answer.empty() || file.read(question.section, question.key))
      entries.push_back({question.section, question.key, answer});
  }
  if (stored == till && (entries.empty() || file.write(entries))) return;
  throw Refusal(
      QCoreApplication::translate("SettingsFile", "设置写不进 Config.ini。").toStdString());
}
