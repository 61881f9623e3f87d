#include "saleslib/SaleWords.h"

void speakInSaleLibrary(Words::Catalogue catalogue) {
  Words::speak(catalogue);
}
