#include "setup/RulesPage.h"

#include <QComboBox>
#include <string>

namespace {

struct Question {
  const char* parameter;
  const char* caption;
};

constexpr Question kQuestions[] = {
    {"PhonePay", QT_TRANSLATE_NOOP("RulesPage", "收手机扫码付款：")},
    {"CheckPayment", QT_TRANSLATE_NOOP("RulesPage", "收款、价格、折扣像打错时先问一声：")},
    {"BackupOnExit", QT_TRANSLATE_NOOP("RulesPage", "退出程序时备份数据文件：")},
    {"StockRule", QT_TRANSLATE_NOOP("RulesPage", "库存不够就不卖：")},
};

}  // namespace

RulesPage::RulesPage(SetupAnswers& answers) : SetupPage(answers) {
  for (const Question& question : kQuestions) {
    auto* list = choice(question.parameter, tr(question.caption), {tr("否"), tr("是")});
    list->setCurrentIndex(answers.shop.parameters[question.parameter] == "1" ? 1 : 0);
    switches_.push_back(list);
  }
  note(tr("以后店主可以用 tilladmin param 更改。"));
}

QString RulesPage::take() {
  for (const QComboBox* list : switches_) {
    answers_.shop.parameters[list->objectName().toStdString()] =
        std::to_string(list->currentIndex());
  }
  return {};
}
