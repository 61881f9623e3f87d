#include "app/TenderTexts.h"

#include <QCoreApplication>

namespace {

// For the translator's tool: the sale library, which has these texts, does not know it.
[[maybe_unused]] constexpr const char* kTexts[] = {
    QT_TRANSLATE_NOOP("Tender", "现金"),   QT_TRANSLATE_NOOP("Tender", "银行卡"),
    QT_TRANSLATE_NOOP("Tender", "扫码"),   QT_TRANSLATE_NOOP("Tender", "付款码"),
    QT_TRANSLATE_NOOP("Tender", "储值卡"), QT_TRANSLATE_NOOP("Tender", "优惠")};

}  // namespace

QString tenderName(const TenderKind& kind) {
  return QCoreApplication::translate("Tender", kind.name);
}

QString tenderSlipName(const TenderKind& kind) {
  return kind.slip ? QCoreApplication::translate("Tender", kind.slip) : QString();
}
