#include "reports/frmJournal.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QTableView>
#include <QVBoxLayout>
#include <utility>

#include "app/posMod.h"
#include "base/Failure.h"
#include "base/Words.h"
#include "platform/KeyName.h"
#include "platform/QtText.h"
#include "reports/TableLook.h"
#include "saleslib/JournalKinds.h"
#include "shell/DateField.h"
#include "shell/Modal.h"
#include "store/Connection.h"

namespace {

constexpr int kAround = 24;  // pixels left free around the form, which else fills the screen
constexpr std::size_t kMostShown = 50'000;
constexpr int kColumnWidths[] = {80, 190, 130, 120, 110};  // pixels; the last takes the rest

}  // namespace

frmJournal::frmJournal(posMod& pos, QWidget* parent)
    : KeyDrivenDialog(pos.gKeyBoard, EnterKey::kMapped, parent),
      pos_(pos),
      model_(new JournalModel(this)),
      DtBegin_(made("DtBegin", new DateField(this))),
      Dtfinish_(made("Dtfinish", new DateField(this))),
      cobKind_(made("cobKind", new QComboBox(this))),
      cobOperator_(made("cobOperator", new QComboBox(this))),
      cmdSearch_(button("cmdSearch", tr("查询(&S)"))),
      cmdCancel_(button("cmdCancel", tr("退出(&X)"))),
      listEntries_(made("listEntries", new QTableView(this))),
      lblState_(label("lblState", {})) {
  setObjectName("frmJournal");
  setWindowTitle(tr("日志"));
  fill();
  arrange();
  for (const QWidget* control :
       std::initializer_list<QWidget*>{DtBegin_, Dtfinish_, cobKind_, cobOperator_, listEntries_})
    onEnter(control, [this] { search(); });
  connect(cmdSearch_, &QPushButton::clicked, this, &frmJournal::search);
  connect(cmdCancel_, &QPushButton::clicked, this, &frmJournal::cancel);
  const QSize free = screen()->availableSize();
  resize(free.width() - kAround, free.height() - kAround);
  centreOnScreen(*this);
}

void frmJournal::fill() {
  const Date today = pos_.clock().date;
  DtBegin_->setDate(today);
  Dtfinish_->setDate(today);
  cobKind_->addItem(tr("全部种类"), QString());
  for (const EntryKindName& kind : entryKinds())
    cobKind_->addItem(qtText(Words::tr(kind.name)), QString(kind.key));
  names_[0] = Words::tr("店主工具");
  cobOperator_->addItem(tr("全部操作员"), -1);
  Rows rows = pos_.gConn->query("select id, name from operators order by id");
  while (rows.next()) names_[rows.whole("id").value_or(0)] = rows.text("name");
  for (const auto& [id, name] : names_)
    cobOperator_->addItem(tr("%1 %2").arg(id).arg(qtText(name)), QVariant::fromValue<qint64>(id));
}

void frmJournal::arrange() {
  listEntries_->setModel(model_);
  lookLikeReport(*listEntries_);
  int column = 0;
  for (const int width : kColumnWidths) listEntries_->setColumnWidth(column++, width);
  lblState_->setTextFormat(Qt::PlainText);
  auto* above = new QHBoxLayout;
  above->setSpacing(10);
  above->addWidget(label("lblFrom", tr("日期：")));
  above->addWidget(DtBegin_);
  above->addWidget(label("lblTo", tr("到")));
  above->addWidget(Dtfinish_);
  above->addWidget(cobKind_);
  above->addWidget(cobOperator_);
  above->addStretch();
  auto* below = new QHBoxLayout;
  below->addWidget(lblState_, 1);
  below->addWidget(cmdSearch_);
  below->addWidget(cmdCancel_);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(above);
  layout->addWidget(listEntries_, 1);
  layout->addLayout(below);
}

void frmJournal::closeEvent(QCloseEvent* event) {
  run_.stop();
  if (run_.isRunning()) return event->ignore();
  KeyDrivenDialog::closeEvent(event);
}

void frmJournal::cancel() {
  close();
}

JournalFilter frmJournal::filter() const {
  JournalFilter wanted;
  wanted.from = DtBegin_->date();
  wanted.to = Dtfinish_->date();
  wanted.kind = cobKind_->currentData().toString().toStdString();
  const qint64 person = cobOperator_->currentData().toLongLong();
  if (person >= 0) wanted.operatorId = person;
  return wanted;
}

void frmJournal::search() {
  if (run_.isRunning() || !DtBegin_->check() || !Dtfinish_->check()) return;
  std::vector<JournalModel::Shown> found;
  try {
    read(found);
  } catch (const Failure& failure) {
    lblState_->clear();
    messageBox(this, qtText(failure.what()));
  }
}

// As wide as what is in it, to which the arrow keys scroll.
void frmJournal::fitDetails() {
  for (const auto column : {JournalModel::kKind, JournalModel::kDetails})
    listEntries_->resizeColumnToContents(column);
  const int free = listEntries_->viewport()->width() -
                   listEntries_->horizontalHeader()->sectionPosition(JournalModel::kDetails);
  if (listEntries_->columnWidth(JournalModel::kDetails) < free)
    listEntries_->setColumnWidth(JournalModel::kDetails, free);
}

void frmJournal::read(std::vector<JournalModel::Shown>& found) {
  const DataSource source = pos_.gConn->source();
  const JournalFilter wanted = filter();
  const QString key = keyName(pos_.gKeyBoard.mEsc);
  const auto showPart = [&](std::size_t count) {
    lblState_->setText(tr("已找到 %L1 条，按 %2 停止").arg(count).arg(key));
  };
  showPart(0);
  const bool isWhole = run_.run(
      [&](const ExportProgress& goOn) {
        Connection reader(source, Connection::Mode::kExisting);
        bool isRead = true;
        readJournal(reader, wanted, [&](const JournalEntry& entry) {
          found.push_back(JournalModel::shown(entry, names_));
          return isRead = found.size() < kMostShown && goOn(found.size());
        });
        return isRead;
      },
      showPart);
  const std::size_t count = found.size();
  model_->show(std::move(found));
  fitDetails();
  listEntries_->scrollToBottom();
  if (count > 0) listEntries_->selectRow(static_cast<int>(count) - 1);
  lblState_->setText(isWhole ? tr("共 %L1 条").arg(count)
                             : tr("只列出前 %L1 条，后面的没有再看").arg(count));
}
