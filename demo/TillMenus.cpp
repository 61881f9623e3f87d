#include "demo/TillMenus.h"

#include <stdexcept>

#include "driver/TillDriver.h"

void TillMenus::choose(int& highlight, int entry, int entries) {
  for (; highlight != entry; highlight = (highlight + 1) % entries) till_.key("Down");
  till_.key("Return");
}

void TillMenus::open(Main entry) {
  till_.waitFor("frmMenu");
  choose(main_, entry, kMainEntries);
}

void TillMenus::open(Further entry, const char* window) {
  till_.waitFor("frmMenu");
  till_.key("Menu");
  till_.sync();
  choose(further_, entry, kFurtherEntries);
  till_.waitFor(window);
}

void TillMenus::end() {
  open(kEnd);
  if (till_.waitForEnd() != 0) throw std::runtime_error("the till did not end cleanly");
}
