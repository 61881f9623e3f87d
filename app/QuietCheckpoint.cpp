#include "app/QuietCheckpoint.h"

#include <QCoreApplication>
#include <QEvent>

#include "store/Connection.h"
#include "store/StoreError.h"

namespace {

/// The milliseconds without a key after which a log of that many pages is copied. A thousand pages
/// take some 5 ms and are written by a dozen sales. Between the digits of a scanned code there are
/// no 100 ms, between two codes there are.
int sufficientPause(int logPages) {
  if (logPages >= 4'000) return 0;
  return logPages >= 1'000 ? 100 : 1'500;
}

bool isInput(QEvent::Type type) {
  return type == QEvent::KeyPress || type == QEvent::MouseButtonPress;
}

}  // namespace

QuietCheckpoint::QuietCheckpoint(QCoreApplication* application, Connection& connection)
    : connection_(connection) {
  pause_.setSingleShot(true);
  pause_.callOnTimeout(this, &QuietCheckpoint::copy);
  application->installEventFilter(this);
}

// Input comes to the window first, then to the control.
bool QuietCheckpoint::eventFilter(QObject* watched, QEvent* event) {
  if (isInput(event->type()) && watched->isWindowType()) {
    pause_.start(sufficientPause(connection_.logPages()));
  }
  return false;
}

// A log that cannot be copied now loses nothing; the next sale will say what is wrong with the
// file.
void QuietCheckpoint::copy() {
  if (connection_.logPages() == 0) return;
  try {
    connection_.checkpoint();
  } catch (const StoreError&) {
    return;
  }
}
