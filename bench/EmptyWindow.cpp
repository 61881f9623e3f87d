// What every program of this kind needs at its start and no till can save: a window, and the key of
// the data file data/POS.mdb. Measured like the till itself, so it passes for its main menu.
#include <QApplication>
#include <QWidget>

#include "bench/BareEngine.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  const auto folder = QCoreApplication::applicationDirPath().toStdString();
  BareEngine engine(folder + "/data/POS.mdb");
  BareEngine::Statement(engine, "select count(*) from sqlite_master").readAll();
  QWidget window;
  window.setObjectName("frmMenu");
  window.showMaximized();
  return application.exec();
}
