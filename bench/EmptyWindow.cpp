// What every program of this kind needs and no till can save: a window, and the key of the data
// file data/POS.mdb; and when there are goods in the file, a list of some in Chinese type, and the
// engine's page cache full of it. Measured like the till itself, so it passes for its main menu.
#include <QApplication>
#include <QListWidget>
#include <QVBoxLayout>

#include "bench/BareEngine.h"
#include "platform/QtText.h"

namespace {

void showGoods(BareEngine& engine, QWidget& window) {
  const Texts goods = BareEngine::Statement(engine, "select spmc, jldw, spcd from tmda").read(100);
  if (goods.empty()) return;
  BareEngine::Statement(engine, "select quantity from stock").readAll();
  BareEngine::Statement(engine, "select * from tmda limit 100000").readAll();
  auto* list = new QListWidget;
  for (const auto& each : goods) list->addItem(qtText(each[0] + each[1] + each[2]));
  (new QVBoxLayout(&window))->addWidget(list);
}

}  // namespace

// A failure ends it with its text, as it should.
int main(int argc, char** argv) {  // NOLINT(bugprone-exception-escape)
  QApplication application(argc, argv);
  const auto folder = QCoreApplication::applicationDirPath().toStdString();
  BareEngine engine(folder + "/data/POS.mdb");
  BareEngine::Statement(engine, "select count(*) from sqlite_master").readAll();
  QWidget window;
  window.setObjectName("frmMenu");
  showGoods(engine, window);
  window.showMaximized();
  return application.exec();
}
