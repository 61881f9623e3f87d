#include "setup/PeoplePage.h"

#include <QLabel>
#include <QLineEdit>

#include "platform/QtText.h"
#include "saleslib/ClsRights.h"
#include "shell/FramedFields.h"

PeoplePage::PeoplePage(SetupAnswers& answers)
    : SetupPage(answers),
      people_{ask(tr("店主（编号 1）姓名："), "txtOwner"),
              ask(tr("收银员（编号 2）姓名："), "txtCashier")} {
  note(
      tr("登录时输入用户编号和密码。还没有收银员的话，空着就行；以后店主可以用 tilladmin "
         "operator 增加。"));
}

PeoplePage::Person PeoplePage::ask(const QString& name, const char* prefix) {
  const QByteArray names(prefix);
  const Person person{field((names + "Name").constData(), name),
                      field((names + "Password").constData(), tr("密码：")),
                      field((names + "Again").constData(), tr("再输一次："))};
  hidePassword(person.password);
  hidePassword(person.again);
  return person;
}

QString PeoplePage::refusal(const Person& person) {
  const std::string name = refusalOfName(person.name->text().toStdString());
  if (!name.empty()) return refuse(person.name, qtText(name));
  if (person.password->text().isEmpty()) return refuse(person.password, tr("请写密码。"));
  if (person.password->text() == person.again->text()) return {};
  person.again->clear();
  return refuse(person.password, tr("两次输入的密码不一样。"));
}

QString PeoplePage::take() {
  answers_.shop.operators.clear();
  std::int16_t number = 0;
  for (const Person& person : people_) {
    ++number;
    const bool isEmpty = person.name->text().trimmed().isEmpty() &&
                         person.password->text().isEmpty() && person.again->text().isEmpty();
    if (number > 1 && isEmpty) continue;
    QString refused = refusal(person);
    if (!refused.isEmpty()) return refused;
    answers_.shop.operators.push_back(
        {number, person.name->text().toStdString(), person.password->text().toStdString(),
         number == 1 ? allRights() : std::vector<std::string>{kRightSell}});
  }
  return {};
}
