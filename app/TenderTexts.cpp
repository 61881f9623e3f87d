#include "app/TenderTexts.h"

#include "base/Words.h"
#include "platform/QtText.h"

QString tenderName(const TenderKind& kind) {
  return qtText(Words::tr(kind.name));
}

QString tenderSlipName(const TenderKind& kind) {
  return kind.slip ? qtText(Words::tr(kind.slip)) : QString();
}
