#include "bench/SaleWindow.h"

#include <QApplication>
#include <QInputMethodEvent>
#include <QTableView>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include "bench/BenchShop.h"
#include "sale/frmSell.h"

namespace {

const char* const kList = "lv";

void press(Qt::Key key) {
  QTest::keyClick(QGuiApplication::focusWindow(), key);
}

}  // namespace

SaleWindow::SaleWindow(const std::filesystem::path& folder)
    : pos_(openTill(folder)),
      checkpoint_(qApp, *pos_->gConn),
      window_(std::make_unique<frmSell>(*pos_, SaleSession::Openers(), [] {})) {}

SaleWindow::~SaleWindow() = default;

void SaleWindow::open(const std::function<void()>& cashier) {
  paint_.afterPaint(kList, [&] {
    cashier();
    press(Qt::Key_Escape);
  });
  window_->openModal();
}

void SaleWindow::type(const std::string& code) {
  for (const char character : code) {
    press(QTest::asciiToKey(character));
    QCoreApplication::processEvents();
  }
}

void SaleWindow::compose(const QString& text) {
  QInputMethodEvent composed;
  composed.setCommitString(text);
  QCoreApplication::sendEvent(QApplication::focusWidget(), &composed);
}

SaleWindow::Rung SaleWindow::ring() {
  const QAbstractItemModel& rows = *window_->findChild<QTableView*>(kList)->model();
  const int rowsBefore = rows.rowCount();
  const Syncs before = syncCount();
  Rung rung;
  rung.microseconds = paint_.untilPainted(
      kList, [] { press(Qt::Key_Return); },
      [&] {
        rung.syncs = syncCount() - before;
        return rows.rowCount() > rowsBefore;
      });
  return rung;
}

void SaleWindow::settle(const std::function<void()>& confirming) {
  throughWindow("frmEndSell", confirming);
}

void SaleWindow::ringFromMenu(const std::function<void()>& painted) {
  throughWindow("frmMenu", painted);
}

// Pressing Enter returns only when the window that it opens is closed. The list is painted behind
// the window as well, so its painting counts from the second Enter on.
void SaleWindow::throughWindow(const QString& name, const std::function<void()>& painted) {
  bool done = false;
  paint_.afterPaint(name, [&] {
    if (painted) painted();
    paint_.afterPaint(kList, [&done] { done = true; });
    press(Qt::Key_Return);
  });
  press(Qt::Key_Return);
  while (!done) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}
