#include "reports/frmReport.h"

#include <QCloseEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <optional>

#include "app/posMod.h"
#include "base/Failure.h"
#include "platform/KeyName.h"
#include "platform/QtText.h"
#include "reports/ExportFolder.h"
#include "shell/DateField.h"
#include "shell/Modal.h"
#include "shell/Noted.h"
#include "shell/ShownText.h"
#include "store/Connection.h"
#include "takings/ReportFile.h"
#include "takings/TakingsReport.h"

namespace {

constexpr int kStateWidth = 460;  // pixels
constexpr int kBesideDates = 8;   // pixels
constexpr int kStateLines = 3;
constexpr int kPerMille = 1000;

/// Reads and writes the report; false when it was stopped. In a thread beside the window, so by a
/// connection of its own.
bool writeFile(const DataSource& source, const ReportTerms& terms, const DateTime& now,
               const std::filesystem::path& file, ReportFormat format, const ExportProgress& goOn) {
  Connection reader(source, Connection::Mode::kExisting);
  const std::optional<Report> report = takingsReport(reader, terms, now, [&goOn](double part) {
    return goOn(static_cast<std::size_t>(part * kPerMille));
  });
  if (!report) return false;
  makeExportFolder(file.parent_path());
  writeReport(file, *report, format);
  return true;
}

}  // namespace

frmReport::frmReport(posMod& pos, QWidget* parent)
    : KeyDrivenDialog(pos.gKeyBoard, EnterKey::kMapped, parent),
      pos_(pos),
      DtBegin_(made("DtBegin", new DateField(this))),
      Dtfinish_(made("Dtfinish", new DateField(this))),
      OptHtml_(choice("OptHtml", tr("网页，带图表 (.html)"))),
      OptXlsx_(choice("OptXlsx", tr("Excel 表格 (.xlsx)"))),
      OptCsv_(choice("OptCsv", tr("CSV 文件 (.csv)"))),
      OptText_(choice("OptText", tr("文本 (.txt)"))),
      cmdOk_(button("cmdOk", tr("生成(&S)"))),
      cmdCancel_(button("cmdCancel", tr("退出(&X)"))),
      lblState_(label("lblState", {})),
      prgState_(new QProgressBar(this)) {
  setObjectName("frmReport");
  setWindowTitle(tr("经营报表"));
  const Date today = pos_.clock().date;
  DtBegin_->setDate({today.year, today.month, 1});
  Dtfinish_->setDate(today);
  OptHtml_->setChecked(true);
  arrange();
  for (const QWidget* control :
       std::initializer_list<QWidget*>{DtBegin_, Dtfinish_, OptHtml_, OptXlsx_, OptCsv_, OptText_})
    onEnter(control, [this] { make(); });
  connect(cmdOk_, &QPushButton::clicked, this, &frmReport::make);
  connect(cmdCancel_, &QPushButton::clicked, this, &frmReport::cancel);
  showIdle(tr("写到文件夹：%1").arg(qtText(exportFolder(pos_.configIni, pos_.folder).string())));
}

QRadioButton* frmReport::choice(const char* name, const QString& text) {
  return made(name, new QRadioButton(text, this));
}

void frmReport::arrange() {
  lblState_->setTextFormat(Qt::PlainText);
  lblState_->setWordWrap(true);
  lblState_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  lblState_->setMinimumSize(kStateWidth, kStateLines * lblState_->fontMetrics().lineSpacing());
  prgState_->setObjectName("prgState");
  prgState_->setRange(0, kPerMille);
  prgState_->setTextVisible(false);
  QSizePolicy keepsItsPlace = prgState_->sizePolicy();
  keepsItsPlace.setRetainSizeWhenHidden(true);
  prgState_->setSizePolicy(keepsItsPlace);
  auto* period = new QHBoxLayout;
  period->setSpacing(kBesideDates);
  period->addWidget(DtBegin_);
  period->addWidget(label("lblTo", tr("到")));
  period->addWidget(Dtfinish_);
  period->addStretch();
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(32, 24, 32, 24);
  grid->setHorizontalSpacing(16);
  grid->setVerticalSpacing(12);
  grid->addWidget(label("lblFrom", tr("日期：")), 0, 0, Qt::AlignRight | Qt::AlignVCenter);
  grid->addLayout(period, 0, 1);
  grid->addWidget(label("lblKind", tr("类型：")), 1, 0, Qt::AlignRight | Qt::AlignVCenter);
  int row = 1;
  for (QRadioButton* kind : {OptHtml_, OptXlsx_, OptCsv_, OptText_})
    grid->addWidget(kind, row++, 1);
  grid->addWidget(lblState_, row++, 0, 1, 2);
  grid->addWidget(prgState_, row++, 0, 1, 2);
  grid->addLayout(buttonRow({cmdOk_, cmdCancel_}), row, 0, 1, 2);
}

ReportFormat frmReport::format() const {
  if (OptXlsx_->isChecked()) return ReportFormat::kXlsx;
  if (OptCsv_->isChecked()) return ReportFormat::kCsv;
  return OptText_->isChecked() ? ReportFormat::kText : ReportFormat::kHtml;
}

// The report ends first: it still uses the form.
void frmReport::closeEvent(QCloseEvent* event) {
  run_.stop();
  if (run_.isRunning()) return event->ignore();
  KeyDrivenDialog::closeEvent(event);
}

void frmReport::cancel() {
  close();
}

bool frmReport::hasPeriod() {
  if (!DtBegin_->check() || !Dtfinish_->check()) return false;
  if (DtBegin_->date() <= Dtfinish_->date()) return true;
  messageBox(this, tr("起止日期不对！"), tr("注意"), BoxIcon::kInformation);
  focusWhole(Dtfinish_);
  return false;
}

bool frmReport::mayWrite(const std::filesystem::path& file) {
  std::error_code unknown;
  if (!std::filesystem::exists(std::filesystem::symlink_status(file, unknown))) return true;
  const QString name = qtText(file.filename().string());
  return askYesNo(this, tr("文件已经存在，要覆盖吗？\n%1").arg(name), windowTitle(), true);
}

void frmReport::make() {
  if (run_.isRunning() || !hasPeriod()) return;
  const std::filesystem::path file = exportFolder(pos_.configIni, pos_.folder) /
                                     reportFileName(DtBegin_->date(), Dtfinish_->date(), format());
  if (!mayWrite(file)) return;
  const QString name = qtText(file.filename().string());
  if (!noted(pos_, this, EntryKind::kReported, name)) return;
  try {
    makeFile(file);
  } catch (const Failure& failure) {
    showIdle({});
    messageBox(this, qtText(failure.what()));
  }
}

void frmReport::makeFile(const std::filesystem::path& file) {
  ReportTerms terms;
  terms.from = DtBegin_->date();
  terms.to = Dtfinish_->date();
  const DataSource source = pos_.gConn->source();
  const DateTime now = pos_.clock();
  const ReportFormat wanted = format();
  showPart(0);
  const bool isWhole = run_.run(
      [&](const ExportProgress& goOn) { return writeFile(source, terms, now, file, wanted, goOn); },
      [this](std::size_t perMille) { showPart(perMille); });
  showIdle(isWhole ? tr("已写到 %1").arg(qtText(file.string())) : tr("已停止，没有写文件"));
}

void frmReport::showPart(std::size_t perMille) {
  const QString key = keyName(pos_.gKeyBoard.mEsc);
  lblState_->setText(tr("正在统计…按 %1 停止").arg(key.isEmpty() ? tr("退出键") : key));
  prgState_->setValue(static_cast<int>(perMille));
  prgState_->show();
}

void frmReport::showIdle(const QString& what) {
  lblState_->setText(shownText(what));
  prgState_->hide();
}
