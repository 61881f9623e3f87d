#include "reports/frmSearch.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <algorithm>
#include <utility>

#include "app/posMod.h"
#include "base/Failure.h"
#include "devices/ReceiptPrinter.h"
#include "platform/KeyName.h"
#include "platform/PortError.h"
#include "platform/QtText.h"
#include "platform/Twips.h"
#include "platform/VirtualKey.h"
#include "reports/ExportDialog.h"
#include "reports/ExportFolder.h"
#include "reports/LastBill.h"
#include "reports/LineQuery.h"
#include "reports/QueryPrints.h"
#include "reports/ResultList.h"
#include "reports/ResultTable.h"
#include "reports/SearchPanel.h"
#include "saleslib/GoodsLookup.h"
#include "shell/DateField.h"
#include "shell/Modal.h"
#include "shell/Noted.h"
#include "shell/dlgApproval.h"

namespace {

constexpr int kWidth = 14235, kHeight = 7755;  // in twips
constexpr int kEdge = 100;                     // in twips

constexpr int kAround = 24;    // pixels left free around the form, which else fills the screen
constexpr int kBlankKey = 32;  // virtual-key code

/// Of the file and in it, whatever the screens speak.
constexpr const char* kExportTitle = "商品查询";  // untranslated: exported

}  // namespace

frmSearch::frmSearch(posMod& pos, QWidget* parent)
    : KeyDrivenDialog(pos.gKeyBoard, EnterKey::kMapped, parent),
      pos_(pos),
      Frame5_(new SearchPanel(this)),
      ListView1_(new ResultTable(this)),
      query_(new LineQuery(*pos.gConn)) {
  query_->setParent(this);
  setObjectName("frmSearch");
  setWindowTitle(tr("商品查询"));
  build();
  connectQuery();
  load();
  watchAll();
  Frame5_->DtBegin->setFocus();
  const QSize free = screen()->availableSize();
  resize(std::max(pixels(kWidth), free.width() - kAround),
         std::max(pixels(kHeight), free.height() - kAround));
  centreOnScreen(*this);
}

void frmSearch::build() {
  ListView1_->setObjectName("ListView1");
  connect(ListView1_, &ResultTable::headingClicked, this, &frmSearch::sortBy);
  for (QPushButton* button : Frame5_->findChildren<QPushButton*>()) button->setAutoDefault(false);
  connect(Frame5_->cmdSearch, &QPushButton::clicked, this, &frmSearch::searchWanted);
  connect(Frame5_->Command1, &QPushButton::clicked, this, &frmSearch::exportList);
  connect(Frame5_->Command2, &QPushButton::clicked, this, &frmSearch::printReport);
  connect(Frame5_->Command3, &QPushButton::clicked, this, &frmSearch::reprintWanted);
  connect(Frame5_->cmdLast, &QPushButton::clicked, this, &frmSearch::reprintLastBill);
  connect(Frame5_->Command4, &QPushButton::clicked, this, &QDialog::close);
}

void frmSearch::load() {
  const Date today = pos_.clock().date;
  if (takesSlips()) Frame5_->askForSlips();
  Frame5_->DtBegin->setDate(today);
  Frame5_->Dtfinish->setDate(today);
  const QString choose = Frame5_->Combo1->currentText();
  for (const std::string& category : goodsCategories(*pos_.gConn))
    Frame5_->Combo1->addItem(qtText(category));
  Frame5_->Combo1->setEditText(choose);
  const KeyBoard& keys = pos_.gKeyBoard;
  Frame5_->showIdle(
      tr("%1：查询　%2：退出").arg(shortKeyText(keys.mEnter), shortKeyText(keys.mEsc)));
}

void frmSearch::connectQuery() {
  connect(query_, &LineQuery::found, this, &frmSearch::addPage);
  connect(query_, &LineQuery::finished, this, &frmSearch::showAll);
  connect(query_, &LineQuery::failed, this, &frmSearch::showFailure);
}

void frmSearch::resizeEvent(QResizeEvent* event) {
  QDialog::resizeEvent(event);
  const int edge = pixels(kEdge);
  const int inner = width() - pixels(2 * kEdge);
  Frame5_->setGeometry(edge, edge, inner, Frame5_->sizeHint().height());
  ListView1_->setGeometry(edge, Frame5_->height() + pixels(2 * kEdge), inner,
                          height() - pixels(3 * kEdge) - Frame5_->height());
}

void frmSearch::closeEvent(QCloseEvent* event) {
  query_->stop();
  export_.stop();
  // The export ends first: it still reads the list.
  if (export_.isRunning()) return event->ignore();
  QDialog::closeEvent(event);
}

void frmSearch::cancel() {
  if (query_->isRunning()) {
    stopQuery();
  } else {
    close();
  }
}

bool frmSearch::handleKey(const QObject* watched, const QKeyEvent& event) {
  const KeyBoard& keys = pos_.gKeyBoard;
  const int key = keys.meaning(virtualKey(event));
  if (key == 0 || key == keys.mEsc) return KeyDrivenDialog::handleKey(watched, event);
  const bool inList = focusWidget() == ListView1_;
  if (inList && key == kBlankKey) {
    sortBy(qMax(0, ListView1_->currentIndex().column()));
  } else if (inList || key != keys.mEnter) {
    return false;
  } else if (auto* button = qobject_cast<QPushButton*>(focusWidget())) {
    button->click();
  } else {
    searchWanted();
  }
  return true;
}

void frmSearch::checkOrder(const SearchCriteria& wanted) {
  if (wanted.start <= wanted.end) return;
  messageBox(this, tr("起止时间不对！"), tr("注意"), BoxIcon::kInformation);
  Frame5_->Dtfinish->setFocus();
}

/// Asked for once per window; what was approved holds until it is closed.
bool frmSearch::mayQuery() {
  if (!queryLeave_) queryLeave_ = askLeave(pos_, this, {Right::kQuery});
  return queryLeave_ != nullptr;
}

void frmSearch::searchWanted() {
  if (mayQuery()) search();
}

void frmSearch::search() {
  if (export_.isRunning() || !Frame5_->check()) return;
  stopQuery();
  SearchCriteria wanted = Frame5_->criteria();
  wanted.takesSlips = takesSlips();
  checkOrder(wanted);
  Frame5_->checkQuantityLimit();
  const std::optional<std::string> statement = searchStatement(wanted);
  if (!statement) {
    messageBox(this, tr("单号应为数字！"), tr("注意"), BoxIcon::kInformation);
    Frame5_->numberSerch->setFocus();
    return;
  }
  asked_ = wanted;
  Frame5_->showWork(tr("正在查询…按 %1 停止").arg(escKey()), 0, 0);
  const auto kinds = optionalTenders(pos_.gSysParam);
  query_->start({*statement, kinds, tenderStatement(wanted, kinds)});
}

bool frmSearch::takesSlips() const {
  return pos_.gSysParam.Takes(tenderKind(Tender::kPhone));
}

void frmSearch::addPage(const SoldPage& page) {
  ListView1_->append(page);
  const QString found = tr("已找到 %L1 行，按 %2 停止");
  Frame5_->showWork(found.arg(ListView1_->lineCount()).arg(escKey()), 0, 0);
}

void frmSearch::showAll() {
  ListView1_->complete();
  found_ = asked_;
  QString parts;
  for (const TenderSum& tender : ListView1_->list()->tenders()) {
    parts += tender.shown(tr("其中%1 [%2] 元。", "part of all lines' sum, behind their number"));
  }
  Frame5_->showIdle(
      tr("共 %L1 行。在列表中按空格键排序。%2").arg(ListView1_->lineCount()).arg(parts));
  if (const Permit leave = std::exchange(printWhenFound_, {})) printReceipt();
}

void frmSearch::stopQuery() {
  printWhenFound_ = {};
  if (!query_->isRunning()) return;
  query_->stop();
  ListView1_->restore();
  Frame5_->showIdle(tr("查询已停止"));
}

void frmSearch::showFailure(const QString& why) {
  printWhenFound_ = {};
  ListView1_->restore();
  Frame5_->showIdle({});
  messageBox(this, why);
}

void frmSearch::sortBy(int column) {
  if (query_->isRunning() || export_.isRunning() || !ListView1_->list()) return;
  ListView1_->sortBy(column);
}

QString frmSearch::escKey() const {
  return shortKeyText(pos_.gKeyBoard.mEsc);
}

/// Whether there is a whole list to work on; else says so.
bool frmSearch::hasList(const QString& otherwise) {
  if (query_->isRunning() || export_.isRunning()) return false;
  if (!ListView1_->list()) messageBox(this, otherwise);
  return ListView1_->list() != nullptr;
}

void frmSearch::printReport() {
  if (!hasList(tr("没有可打印的内容！")) || !Frame5_->check() || !mayQuery()) return;
  if (!noted(pos_, this, EntryKind::kReported, qtText(kExportTitle))) return;
  print(reportSheet(*ListView1_->list(), Frame5_->start(), Frame5_->end(), pos_.clock()));
}

void frmSearch::reprintWanted() {
  if (!hasList(tr("没有可打印的内容！"))) return;
  const Permit leave = askLeave(pos_, this, {Right::kReprint});
  if (leave) printReceipt();
}

void frmSearch::printReceipt() {
  const ResultList& list = *ListView1_->list();
  std::string number = Frame5_->numberSerch->text().toStdString();
  if (takesSlips() && list.lineCount() > 0) number = list.text(0, kColumnBill);
  if (!noted(pos_, this, EntryKind::kReprinted, qtText(number))) return;
  print(reprintPage(list, number, pos_.gSysParam, pos_.clock()));
}

// The query shows what is printed, so that the cashier sees which bill it was.
void frmSearch::reprintLastBill() {
  if (export_.isRunning()) return;
  try {
    const std::optional<LastBill> bill = lastBill(*pos_.gConn);
    if (!bill) return messageBox(this, tr("还没有可以补打的单据！"));
    const Permit leave = askLeave(pos_, this, {Right::kReprint});
    if (!leave) return;
    Frame5_->lookFor(*bill);
    search();
    printWhenFound_ = leave;
  } catch (const Failure& failure) {
    messageBox(this, qtText(failure.what()));
  }
}

template <class Document>
void frmSearch::print(const Document& document) {
  try {
    ReceiptPrinter::ofSystem(pos_.gPosSet, *pos_.ports)->print(document);
  } catch (const PortError& error) {
    messageBox(this, qtText(error.what()));
  }
}

void frmSearch::exportList() {
  if (!hasList(tr("没有可导出的内容！")) || !mayQuery()) return;
  const QString name = qtText(kExportTitle) + ' ' + qtText(dateText(pos_.clock().date));
  ExportDialog dialog(pos_.gKeyBoard, exportFolder(pos_.configIni, pos_.folder), name, this);
  if (dialog.exec() != QDialog::Accepted) return;
  const QString file = qtText(dialog.file().filename().string());
  if (noted(pos_, this, EntryKind::kExported, file)) exportTo(dialog.file());
}

void frmSearch::exportTo(const std::filesystem::path& file) {
  std::vector<std::string> above = criteriaText(found_);
  above.insert(above.begin(), kExportTitle);
  for (const TenderSum& tender : ListView1_->list()->tenders()) above.push_back(tender.printed());
  const std::shared_ptr<const ResultList> list = ListView1_->list();
  const QString state = tr("正在导出…按 %1 停止").arg(escKey());
  const auto show = [&](std::size_t rows) { Frame5_->showWork(state, rows, list->rowCount()); };
  show(0);
  try {
    makeExportFolder(file.parent_path());
    const bool isWhole = export_.write(file, {above, *list}, show);
    const QString shown = qtText(file.string());
    Frame5_->showIdle(isWhole ? tr("已导出 %1").arg(shown) : tr("导出已停止"));
  } catch (const Failure& error) {
    Frame5_->showIdle({});
    messageBox(this, qtText(error.what()));
  }
}
