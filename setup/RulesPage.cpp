#include "setup/RulesPage.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLineEdit>

#include "base/Words.h"
#include "platform/QtText.h"

namespace {

constexpr int kRowSpacing = 2;  // all of them show on a screen of 768 pixels

QString shown(const char* text) {
  return qtText(Words::tr(text));
}

}  // namespace

RulesPage::RulesPage(SetupAnswers& answers) : SetupPage(answers) {
  setObjectName("rules");
  grid().setVerticalSpacing(kRowSpacing);
  for (const SetupQuestion& question : setupQuestions()) {
    const QString caption = tr("%1：").arg(shown(question.text));
    const QString value = qtText(answers.shop.answerTo(question));
    if (question.answers.empty()) {
      QLineEdit* line = field(question.key, caption);
      line->setText(value);
      fields_.push_back(line);
      continue;
    }
    QComboBox* list = choice(question.key, caption, {});
    for (const SetupQuestion::Answer& answer : question.answers)
      list->addItem(shown(answer.text), QString(answer.value));
    list->setCurrentIndex(std::max(0, list->findData(value)));
    fields_.push_back(list);
  }
  note(tr("以后店主可以更改：店铺的用 tilladmin param，备份的在 Config.ini 里。"));
}

QString RulesPage::take() {
  for (std::size_t i = 0; i < fields_.size(); ++i) {
    const SetupQuestion& question = setupQuestions()[i];
    const auto* line = qobject_cast<const QLineEdit*>(fields_[i]);
    const QString value = line ? line->text().trimmed()
                               : qobject_cast<QComboBox*>(fields_[i])->currentData().toString();
    const std::string refused = question.refusal ? question.refusal(value.toStdString()) : "";
    if (!refused.empty()) return refuse(fields_[i], qtText(refused));
    answers_.shop.answer(question, value.toStdString());
  }
  return {};
}
