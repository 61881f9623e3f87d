#include <QCoreApplication>

#include "base/Failure.h"
#include "platform/CoreDumps.h"
#include "shell/FocusReturn.h"
#include "shell/HeldKeys.h"
#include "shell/ScreenFit.h"
#include "shell/Style.h"
#include "shell/ToolkitTexts.h"
#include "till/Till.h"
#include "till/TillApplication.h"

int main(int argc, char** argv) {
  turnCoreDumpsOff();
  TillApplication application(argc, argv);
  application.setApplicationDisplayName(TillApplication::tr("前台收银"));
  application.setQuitOnLastWindowClosed(false);  // dialogs come and go; the main window ends it
  loadToolkitTexts();
  applyStyle(application);
  new FocusReturn(&application);
  new HeldKeys(&application);
  new ScreenFit(&application);
  try {
    Till till(QCoreApplication::applicationDirPath().toStdString());
    return till.Main() ? application.exec() : 1;
  } catch (const Failure& failure) {
    TillApplication::showFailure(failure);
    return 1;
  }
}
