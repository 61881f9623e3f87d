#include "shell/IdentityTexts.h"

#include <QCoreApplication>

#include "platform/QtText.h"

QString refusalText(const Identification::Answer& answer) {
  if (answer.wait.count() == 0) return qtText(answer.refusal);
  return QCoreApplication::translate("Identification", "密码连续错了几次，请等 %1 秒再试。")
      .arg(answer.wait.count());
}
