#include "shell/BackupLine.h"

#include <QEventLoop>
#include <QPainter>
#include <QProgressDialog>
#include <QPushButton>
#include <QTimer>

#include "backups/BackupKeeper.h"
#include "base/Failure.h"
#include "platform/QtText.h"
#include "shell/Style.h"

namespace {

constexpr int kPixels = 16;
constexpr int kPlateMargin = 6;
constexpr int kOldDays = 3;
constexpr int kWaitPixels = 400;
constexpr QColor kAlarm(0xc0, 0x10, 0x10);

QString faultText(const BackupResult& state) {
  QStringList faults;
  for (const std::string* fault : {&state.fault, &state.mediumFault})
    if (!fault->empty()) faults += qtText(*fault);
  return faults.join(' ');
}

}  // namespace

QString BackupLine::ageText(const BackupKeeper& backups) {
  const std::optional<int> age = backups.age();
  if (!age) return tr("账目备份：还没有");
  return *age == 0 ? tr("账目备份：今天") : tr("账目备份：%1 天前").arg(*age);
}

void BackupLine::paint(QPainter& painter, const QRect& place, const BackupKeeper& backups) {
  painter.save();
  QFont small = painter.font();
  small.setPixelSize(kPixels);
  painter.setFont(small);
  const QFontMetrics metrics = painter.fontMetrics();
  const int height = metrics.height() + kPlateMargin;
  const QString fault = faultText(backups.state());
  painter.drawText(place.translated(kPlateMargin, height + kPlateMargin / 2),
                   Qt::AlignLeft | Qt::AlignTop,
                   metrics.elidedText(fault, Qt::ElideRight, place.width() - 2 * kPlateMargin));
  const QString age = ageText(backups);
  QRect plate(place.topLeft(), QSize(metrics.horizontalAdvance(age) + 2 * kPlateMargin, height));
  if (backups.daysAtRisk() >= kOldDays) {
    painter.fillRect(plate, kAlarm);
    painter.setPen(Qt::white);
  }
  painter.drawText(plate, Qt::AlignCenter, age);
  painter.restore();
}

bool makeLastBackup(BackupKeeper* backups) {
  constexpr int kLookMilliseconds = 50, kShowMilliseconds = 400;
  if (!backups) return false;
  backups->makeAnew();
  if (!backups->isRunning()) return false;
  QProgressDialog wait(BackupLine::tr("正在备份账目，请稍候……"), {}, 0, 0);
  // An Enter too many, from the menu, must not end it.
  auto* leave = new QPushButton(BackupLine::tr("不等了（Esc）"));
  leave->setFocusPolicy(Qt::NoFocus);
  leave->setAutoDefault(false);
  wait.setCancelButton(leave);
  wait.setObjectName("backupWait");
  wait.setMinimumWidth(kWaitPixels);
  wait.setWindowModality(Qt::ApplicationModal);
  wait.setMinimumDuration(kShowMilliseconds);
  wait.setValue(0);
  QEventLoop loop;
  QTimer look;
  bool isMade = false;
  look.callOnTimeout(&loop, [&] {
    isMade = backups->look();
    if (isMade || !backups->isRunning()) loop.quit();
  });
  QObject::connect(&wait, &QProgressDialog::canceled, &loop, &QEventLoop::quit);
  look.start(kLookMilliseconds);
  loop.exec();
  backups->stop();
  if (isMade && !backups->state().fault.empty()) throw Failure(backups->state().fault);
  return isMade;
}
