#include "setup/TerminalTill.h"

#include <QEventLoop>
#include <QGuiApplication>
#include <QTimer>
#include <algorithm>
#include <utility>

#include "settings/DeviceTest.h"
#include "settings/PosSetLists.h"
#include "setup/ColoursPage.h"
#include "setup/SettingsFile.h"
#include "shop/NewShop.h"

namespace {

/// A caption of the window, without its colon.
std::string questionOf(const char* caption) {
  QString text = PosSetLists::tr(caption);
  // untranslated: either language's colon
  while (text.endsWith("：") || text.endsWith(':')) text.chop(1);
  return text.toStdString();
}

// The page printer needs a screen to think of, and there may be none.
std::unique_ptr<QGuiApplication> applicationWithoutScreen() {
  if (QCoreApplication::instance() != nullptr) return nullptr;
  static char name[] = "tilladmin";
  static char* arguments[] = {name, nullptr};
  static int count = 1;
  qputenv("QT_QPA_PLATFORM", "offscreen");
  return std::make_unique<QGuiApplication>(count, arguments);
}

}  // namespace

TerminalTill::TerminalTill(const std::filesystem::path& shopFolder, Clock clock)
    : application_(applicationWithoutScreen()),
      configIni_(shopFolder / "Config.ini"),
      ports_(configIni_),
      clock_(std::move(clock)) {}

TerminalTill::~TerminalTill() = default;

std::vector<TillSetup::Choice> TerminalTill::devices() {
  std::vector<Choice> all;
  for (const PosSetLists::Choice& list : PosSetLists::choices()) {
    Choice choice{questionOf(list.caption), {}, 0, {}};
    for (const char* entry : list.entries)
      choice.answers.push_back(PosSetLists::tr(entry).toStdString());
    choice.chosen = static_cast<std::size_t>(std::max(0, list.entryOf(till_)));
    choice.choose = [this, &list](std::size_t entry) {
      list.choose(till_, static_cast<int>(entry));
    };
    all.push_back(std::move(choice));
  }
  return all;
}

TillSetup::Choice TerminalTill::colours() {
  Choice choice{ColoursPage::tr("收银画面的颜色").toStdString(), {}, 0, {}};
  for (const Palette& palette : palettes())
    choice.answers.push_back(ColoursPage::tr(palette.name).toStdString());
  choice.choose = [this](std::size_t palette) { palettes()[palette].paint(till_); };
  return choice;
}

std::vector<std::string> TerminalTill::tryDevices() {
  DeviceTest devices(ports_, till_, clock_);
  std::vector<std::string> lines;
  for (const DeviceTest::Result& result : devices.run())
    lines.push_back(DeviceTest::tr("%1：%2").arg(result.device, result.text).toStdString());
  // The display is sent its bytes from the event loop.
  constexpr int kSendingMilliseconds = 500;
  QEventLoop sending;
  QTimer::singleShot(kSendingMilliseconds, &sending, &QEventLoop::quit);
  if (!till_.CVProt.empty()) sending.exec();
  return lines;
}

void TerminalTill::load(NewShop& answers) {
  readSettings(configIni_, till_, answers);
}

void TerminalTill::store(const NewShop& answers) {
  storeSettings(configIni_, till_, answers);
}
