#pragma once

#include <QString>

/// The entry chosen in a popup menu.
struct MenuItem {
  QString title;  ///< the entry's caption as shown
  QString Key;    ///< what its owner dispatches by
  int Index = 0;  ///< position, from 0
};
