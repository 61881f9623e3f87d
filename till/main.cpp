#include <QCommandLineParser>
#include <QCoreApplication>

#include "app/ShopFolder.h"
#include "base/Failure.h"
#include "base/Version.h"
#include "platform/CoreDumps.h"
#include "platform/QtText.h"
#include "shell/FocusReturn.h"
#include "shell/HeldKeys.h"
#include "shell/ScreenFit.h"
#include "shell/Style.h"
#include "shell/ToolkitTexts.h"
#include "till/Till.h"
#include "till/TillApplication.h"

namespace {

/// What the command line says of the shop's folder. Ends the program after --help, --version and a
/// mistake.
std::string askedFolder(const QCoreApplication& application) {
  const QCommandLineOption shop("shop",
                                TillApplication::tr("店铺的文件夹，里面有 Config.ini 和 data。"),
                                TillApplication::tr("文件夹"));
  QCommandLineParser parser;
  parser.addOption(shop);
  parser.addHelpOption();
  parser.addVersionOption();
  parser.process(application);
  return parser.value(shop).toStdString();
}

}  // namespace

int main(int argc, char** argv) {
  turnCoreDumpsOff();
  TillApplication application(argc, argv);
  application.setApplicationDisplayName(TillApplication::tr("前台收银"));
  application.setApplicationVersion(qtText(tillVersion()));
  application.setQuitOnLastWindowClosed(false);  // dialogs come and go; the main window ends it
  loadToolkitTexts();
  const std::string asked = askedFolder(application);
  applyStyle(application);
  new FocusReturn(&application);
  new HeldKeys(&application);
  new ScreenFit(&application);
  try {
    Till till(shopFolder(asked, QCoreApplication::applicationDirPath().toStdString()));
    return till.Main() ? application.exec() : 1;
  } catch (const Failure& failure) {
    TillApplication::showFailure(failure);
    return 1;
  }
}
