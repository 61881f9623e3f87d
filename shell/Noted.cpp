#include "shell/Noted.h"

#include "app/posMod.h"
#include "base/Failure.h"
#include "platform/QtText.h"
#include "saleslib/Journal.h"
#include "shell/Modal.h"

bool noted(const posMod& pos, QWidget* parent, EntryKind kind, const QString& touches) {
  if (!pos.gConn) return true;  // no shop is open yet
  try {
    pos.journal().note(kind, touches.toStdString());
    return true;
  } catch (const Failure& failure) {
    messageBox(parent, qtText(failure.what()));
    return false;
  }
}
