#include "reports/frmSearch.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QDateEdit>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QTableView>
#include <QTimeEdit>
#include <algorithm>

#include "app/posMod.h"
#include "base/NumberText.h"
#include "platform/PortError.h"
#include "platform/Twips.h"
#include "platform/VirtualKey.h"
#include "reports/ExportName.h"
#include "reports/KeyPreview.h"
#include "reports/LineQuery.h"
#include "reports/QueryPrints.h"
#include "reports/ResultModel.h"
#include "reports/SearchPanel.h"
#include "reports/TableLook.h"
#include "shell/Modal.h"

namespace {

// In twips.
constexpr int kWidth = 14235;
constexpr int kHeight = 7755;
constexpr int kAround = 24;         // pixels left free around the form, which else fills the screen
constexpr int kColumnAir = 12;      // pixels beside the widest text of a column
constexpr int kWidestColumn = 320;  // pixels
constexpr int kFittedRows = 200;    // rows looked at for a column's width
constexpr int kEdge = 100;

constexpr int kBlankKey = 32;  // virtual-key code

DateTime joined(const QDateEdit& dateEdit, const QTimeEdit& timeEdit) {
  const QDate date = dateEdit.date();
  const QTime time = timeEdit.time();
  return {{date.year(), date.month(), date.day()}, time.hour(), time.minute(), time.second()};
}

}  // namespace

frmSearch::frmSearch(posMod& pos, QWidget* parent)
    : QDialog(parent),
      pos_(pos),
      Frame5_(new SearchPanel(this)),
      ListView1_(new QTableView(this)),
      model_(new ResultModel(this)),
      query_(new LineQuery(pos.gConn->source())) {
  query_->setParent(this);
  setObjectName("frmSearch");
  setWindowTitle(tr("商品查询"));
  build();
  connectQuery();
  load();
  new KeyPreview(this, [this](int key) { return keyTaken(key); });
  Frame5_->DtBegin->setFocus();
  const QSize free = screen()->availableSize();
  resize(std::max(pixels(kWidth), free.width() - kAround),
         std::max(pixels(kHeight), free.height() - kAround));
  centreOnScreen(*this);
}

void frmSearch::build() {
  ListView1_->setObjectName("ListView1");
  ListView1_->setModel(model_);
  lookLikeReport(*ListView1_);
  QHeaderView* headings = ListView1_->horizontalHeader();
  for (int column = 0; column < kResultColumns; ++column)
    headings->resizeSection(column, pixels(resultColumns()[column].width));
  headings->setSectionsClickable(true);
  headings->setResizeContentsPrecision(kFittedRows);
  connect(headings, &QHeaderView::sectionClicked, this, &frmSearch::sortBy);
  for (QPushButton* button : Frame5_->findChildren<QPushButton*>()) button->setAutoDefault(false);
  connect(Frame5_->cmdSearch, &QPushButton::clicked, this, &frmSearch::search);
  connect(Frame5_->Command1, &QPushButton::clicked, this, &frmSearch::exportList);
  connect(Frame5_->Command2, &QPushButton::clicked, this, &frmSearch::printReport);
  connect(Frame5_->Command3, &QPushButton::clicked, this, &frmSearch::printReceipt);
  connect(Frame5_->Command4, &QPushButton::clicked, this, &QDialog::close);
}

void frmSearch::load() {
  const Date today = pos_.clock().date;
  const QDate shown(today.year, today.month, today.day);
  Frame5_->DtBegin->setDate(shown);
  Frame5_->Dtfinish->setDate(shown);
  const Recordset categories = pos_.gConn->Open("select  SPLBMC from SP_LB order by SPLB_ID");
  const QString choose = Frame5_->Combo1->currentText();
  for (std::size_t row = 0; row < categories.count(); ++row)
    Frame5_->Combo1->addItem(QString::fromStdString(categories.row(row).text("SPLBMC")));
  Frame5_->Combo1->setEditText(choose);
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

// Neither Esc nor Enter has a meaning of its own here: the keyboard map says what they do.
void frmSearch::keyPressEvent(QKeyEvent* event) {
  event->ignore();
}

bool frmSearch::keyTaken(int key) {
  const KeyBoard& keys = pos_.gKeyBoard;
  if (key == 0) return false;
  if (key == keys.mEsc) {
    if (query_->isRunning()) {
      stopQuery();
    } else {
      close();
    }
    return true;
  }
  const bool inList = focusWidget() == ListView1_;
  if ((key == keys.mEnter || key == vk::kEnter) && !inList) {
    if (auto* button = qobject_cast<QPushButton*>(focusWidget())) {
      button->click();
    } else {
      search();
    }
    return true;
  }
  if (key == kBlankKey && inList) {
    sortBy(qMax(0, ListView1_->currentIndex().column()));
    return true;
  }
  return false;
}

DateTime frmSearch::shownStart() const {
  return joined(*Frame5_->DtBegin, *Frame5_->DTPBeginTime);
}

DateTime frmSearch::shownEnd() const {
  return joined(*Frame5_->Dtfinish, *Frame5_->DtfinishTime);
}

SearchCriteria frmSearch::criteria() const {
  SearchCriteria wanted;
  wanted.start = shownStart();
  wanted.end = shownEnd();
  if (wanted.start == wanted.end) wanted.end.date = plusDays(wanted.end.date, 1);
  wanted.byCategory = Frame5_->Option2->isChecked();
  wanted.code = Frame5_->zjmtm->text().toStdString();
  wanted.billNo = Frame5_->numberSerch->text().toStdString();
  wanted.category = Frame5_->Combo1->currentText().toStdString();
  return wanted;
}

void frmSearch::checkPeriod(const SearchCriteria& wanted) {
  if (wanted.start <= wanted.end) return;
  messageBox(this, tr("起止时间不对！"), tr("注意"), BoxIcon::kInformation);
  Frame5_->Dtfinish->setFocus();
}

void frmSearch::checkQuantityLimit() {
  if (parseNumber(Frame5_->xssl->text().toStdString())) return;
  Frame5_->xssl->setText("0");
  Frame5_->xssl->setFocus();
}

void frmSearch::search() {
  if (export_.isRunning()) return;
  stopQuery();
  const SearchCriteria wanted = criteria();
  checkPeriod(wanted);
  checkQuantityLimit();
  const std::optional<std::string> statement = searchStatement(wanted);
  if (!statement) {
    messageBox(this, tr("单号应为数字！"), tr("注意"), BoxIcon::kInformation);
    Frame5_->numberSerch->setFocus();
    return;
  }
  asked_ = wanted;
  showWork(tr("正在查询…按 Esc 停止"), 0, 0);
  query_->start(*statement);
}

void frmSearch::addPage(const SoldPage& page) {
  if (!placeBefore_) {
    const QModelIndex current = ListView1_->currentIndex();
    placeBefore_ = Place{current.row(), current.column(), ListView1_->verticalScrollBar()->value()};
  }
  const bool isFirst = model_->rowCount() == 0;
  model_->append(page);
  if (isFirst) fitColumns();
  showWork(tr("已找到 %L1 行，按 Esc 停止").arg(model_->rowCount()), 0, 0);
}

void frmSearch::showAll() {
  model_->complete();
  fitColumns();
  if (!ListView1_->currentIndex().isValid()) ListView1_->setCurrentIndex(model_->index(0, 0));
  placeBefore_.reset();
  found_ = asked_;
  ListView1_->horizontalHeader()->setSortIndicatorShown(false);
  showIdle(tr("共 %L1 行，空格键排序").arg(model_->list()->lineCount()));
}

// The columns start at the widths of their design; what they hold says better how wide they must be
// for a bill's line to be read without scrolling sideways. The totals are known only at the end.
void frmSearch::fitColumns() {
  ListView1_->resizeColumnsToContents();
  QHeaderView* headings = ListView1_->horizontalHeader();
  for (int column = 0; column < kResultColumns; ++column) {
    const int fitting = headings->sectionSize(column) + kColumnAir;
    headings->resizeSection(column, std::min(fitting, kWidestColumn));
  }
}

void frmSearch::stopQuery() {
  if (!query_->isRunning()) return;
  query_->stop();
  model_->restore();
  if (placeBefore_) {
    ListView1_->setCurrentIndex(model_->index(placeBefore_->row, placeBefore_->column));
    ListView1_->verticalScrollBar()->setValue(placeBefore_->scrolled);
    placeBefore_.reset();
  }
  showIdle(tr("查询已停止"));
}

void frmSearch::showFailure(const QString& why) {
  model_->restore();
  placeBefore_.reset();
  showIdle({});
  messageBox(this, why);
}

void frmSearch::sortBy(int column) {
  if (query_->isRunning() || export_.isRunning() || !model_->list()) return;
  model_->sortBy(column);
  ListView1_->horizontalHeader()->setSortIndicatorShown(true);
  ListView1_->horizontalHeader()->setSortIndicator(
      column, model_->isDescending() ? Qt::DescendingOrder : Qt::AscendingOrder);
}

/// Whether there is a whole list to work on; else says so.
bool frmSearch::hasList(const QString& otherwise) {
  if (query_->isRunning() || export_.isRunning()) return false;
  if (!model_->list()) messageBox(this, otherwise);
  return model_->list() != nullptr;
}

void frmSearch::printReport() {
  if (!hasList(tr("没有可打印的内容！"))) return;
  print(reportPage(*model_->list(), shownStart(), shownEnd(), pos_.clock()));
}

void frmSearch::printReceipt() {
  if (!hasList(tr("没有可打印的内容！"))) return;
  print(reprintPage(*model_->list(), Frame5_->numberSerch->text().toStdString(), pos_.gSysParam,
                    pos_.clock()));
}

void frmSearch::print(const PageDocument& page) {
  try {
    pos_.ports.pagePrinter(pos_.gPosSet.PModel)->print(page);
  } catch (const PortError& error) {
    messageBox(this, QString::fromUtf8(error.what()));
  }
}

void frmSearch::exportList() {
  if (!hasList(tr("没有可导出的内容！"))) return;
  const QString today = QString::fromStdString(dateText(pos_.clock().date));
  const QString file = askExportName(this, tr("商品查询 %1.xlsx").arg(today));
  if (!file.isEmpty()) exportTo(file);
}

void frmSearch::exportTo(const QString& file) {
  std::vector<std::string> above = criteriaText(found_);
  above.insert(above.begin(), windowTitle().toStdString());
  const std::shared_ptr<const ResultList> list = model_->list();
  const int all = static_cast<int>(list->rowCount());
  const auto show = [&](std::size_t rows) {
    showWork(tr("正在导出…按 Esc 停止"), static_cast<int>(rows), all);
  };
  show(0);
  try {
    const bool isWhole = export_.write(file.toStdString(), {above, *list}, show);
    showIdle(isWhole ? tr("已导出 %1").arg(QFileInfo(file).fileName()) : tr("导出已停止"));
  } catch (const ExportError& error) {
    showIdle({});
    messageBox(this, QString::fromUtf8(error.what()));
  }
}

/// `all` 0: nobody knows how much there is to do.
void frmSearch::showWork(const QString& what, int done, int all) {
  Frame5_->lblState->setText(what);
  Frame5_->prgState->setRange(0, all);
  Frame5_->prgState->setValue(done);
  Frame5_->prgState->show();
}

void frmSearch::showIdle(const QString& what) {
  Frame5_->lblState->setText(what);
  Frame5_->prgState->hide();
}
