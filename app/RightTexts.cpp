#include "app/RightTexts.h"

#include <QCoreApplication>

#include "base/NumberText.h"
#include "platform/QtText.h"

namespace {

// For the translator's tool: the sale library, which has these texts, does not know it.
[[maybe_unused]] constexpr const char* kTexts[] = {
    QT_TRANSLATE_NOOP("Right", "收银"),       QT_TRANSLATE_NOOP("Right", "打折和优惠"),
    QT_TRANSLATE_NOOP("Right", "手工定价"),   QT_TRANSLATE_NOOP("Right", "负数量"),
    QT_TRANSLATE_NOOP("Right", "删行和撤单"), QT_TRANSLATE_NOOP("Right", "退货"),
    QT_TRANSLATE_NOOP("Right", "会员充值"),   QT_TRANSLATE_NOOP("Right", "开钱箱"),
    QT_TRANSLATE_NOOP("Right", "补打小票"),   QT_TRANSLATE_NOOP("Right", "销售查询和导出"),
    QT_TRANSLATE_NOOP("Right", "会员资料"),   QT_TRANSLATE_NOOP("Right", "设置和导入商品"),
    QT_TRANSLATE_NOOP("Right", "交班"),       QT_TRANSLATE_NOOP("Right", "经营报表"),
    QT_TRANSLATE_NOOP("Right", "操作日志")};

}  // namespace

QString deedText(const Deed& deed) {
  const RightKind& kind = rightKind(deed.right);
  QString word = QCoreApplication::translate("Right", kind.word);
  if (kind.limit == RightKind::Limit::kNone) return word;
  return QCoreApplication::translate("Right", "%1 %2", "a deed, and how much of it")
      .arg(word, limitText(kind, deed.size));
}

QString limitText(const RightKind& kind, Currency limit) {
  if (kind.limit == RightKind::Limit::kPercent)
    return QCoreApplication::translate("Right", "%1%", "per cent")
        .arg(qtText(generalNumber(limit)));
  return QCoreApplication::translate("Right", "%1 元").arg(qtText(twoDecimals(limit)));
}
