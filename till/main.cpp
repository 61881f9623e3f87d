#include <QCommandLineParser>
#include <QCoreApplication>

#include "app/Language.h"
#include "base/Failure.h"
#include "base/ShopFolder.h"
#include "base/Version.h"
#include "platform/CoreDumps.h"
#include "platform/IniFile.h"
#include "platform/QtText.h"
#include "shell/FocusReturn.h"
#include "shell/HeldKeys.h"
#include "shell/ScreenFit.h"
#include "shell/Style.h"
#include "shell/ToolkitTexts.h"
#include "till/Till.h"
#include "till/TillApplication.h"

namespace {

constexpr const char* kShop = "shop";

void addOptions(QCommandLineParser& parser) {
  parser.addOption({kShop, TillApplication::tr("店铺的文件夹，里面有 Config.ini 和 data。"),
                    TillApplication::tr("文件夹")});
  parser.addHelpOption();
  parser.addVersionOption();
}

/// The shop's folder, after what the command line says.
std::filesystem::path askedFolder() {
  QCommandLineParser parser;
  addOptions(parser);
  parser.parse(QCoreApplication::arguments());
  return shopFolder(parser.value(kShop).toStdString(),
                    QCoreApplication::applicationDirPath().toStdString());
}

/// Ends the program after --help, --version and a mistake on the command line.
void answerCommandLine(const QCoreApplication& application) {
  QCommandLineParser parser;
  addOptions(parser);
  parser.process(application);
}

}  // namespace

int main(int argc, char** argv) {
  turnCoreDumpsOff();
  TillApplication application(argc, argv);
  const std::filesystem::path folder = askedFolder();
  const Language language = chosenLanguage(IniFile(folder / "Config.ini"));
  speak(language);
  application.setApplicationDisplayName(TillApplication::tr("前台收银"));
  application.setApplicationVersion(qtText(tillVersion()));
  application.setQuitOnLastWindowClosed(false);  // dialogs come and go; the main window ends it
  loadToolkitTexts(language);
  answerCommandLine(application);
  applyStyle(application);
  new FocusReturn(&application);
  new HeldKeys(&application);
  new ScreenFit(&application);
  try {
    Till till(folder);
    return till.Main() ? application.exec() : 1;
  } catch (const Failure& failure) {
    TillApplication::showFailure(failure);
    return 1;
  }
}
