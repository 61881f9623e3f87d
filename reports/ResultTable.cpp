#include "reports/ResultTable.h"

#include <QHeaderView>
#include <QScrollBar>
#include <algorithm>

#include "platform/Twips.h"
#include "reports/ResultModel.h"
#include "reports/TableLook.h"

namespace {

// In pixels.
constexpr int kColumnAir = 12;  // beside the widest text of a column
constexpr int kWidestColumn = 320;
constexpr int kNarrowestName = 120;

constexpr int kFittedRows = 200;  // rows looked at for a column's width

}  // namespace

ResultTable::ResultTable(QWidget* parent) : QTableView(parent), model_(new ResultModel(this)) {
  setModel(model_);
  lookLikeReport(*this);
  QHeaderView* headings = horizontalHeader();
  for (int column = 0; column < kResultColumns; ++column)
    headings->resizeSection(column, pixels(resultColumns()[column].width));
  headings->setSectionsClickable(true);
  headings->setResizeContentsPrecision(kFittedRows);
  connect(headings, &QHeaderView::sectionClicked, this, &ResultTable::headingClicked);
}

std::shared_ptr<const ResultList> ResultTable::list() const {
  return model_->list();
}

int ResultTable::lineCount() const {
  return list() ? static_cast<int>(list()->lineCount()) : 0;
}

void ResultTable::append(const SoldPage& page) {
  if (!placeBefore_) {
    const QModelIndex current = currentIndex();
    placeBefore_ = Place{current.row(), current.column(), verticalScrollBar()->value()};
  }
  const bool isFirst = model_->rowCount() == 0;
  model_->append(page);
  if (isFirst) fitColumns();
}

void ResultTable::complete() {
  model_->complete();
  fitColumns();
  if (!currentIndex().isValid()) setCurrentIndex(model_->index(0, 0));
  placeBefore_.reset();
  horizontalHeader()->setSortIndicatorShown(false);
}

void ResultTable::restore() {
  model_->restore();
  if (!placeBefore_) return;
  setCurrentIndex(model_->index(placeBefore_->row, placeBefore_->column));
  verticalScrollBar()->setValue(placeBefore_->scrolled);
  placeBefore_.reset();
}

void ResultTable::sortBy(int column) {
  model_->sortBy(column);
  horizontalHeader()->setSortIndicatorShown(true);
  horizontalHeader()->setSortIndicator(
      column, model_->isDescending() ? Qt::DescendingOrder : Qt::AscendingOrder);
}

// The columns start at the widths of their design; what they hold says better how wide they must
// be. The totals are known only at the end.
void ResultTable::fitColumns() {
  if (model_->rowCount() == 0) return;
  resizeColumnsToContents();
  QHeaderView* headings = horizontalHeader();
  for (int column = 0; column < kResultColumns; ++column) {
    const int fitting = headings->sectionSize(column) + kColumnAir;
    headings->resizeSection(column, std::min(fitting, kWidestColumn));
  }
  const int beyond = headings->sectionPosition(kColumnMoney) + headings->sectionSize(kColumnMoney) -
                     viewport()->width();
  if (beyond <= 0) return;
  const int name = headings->sectionSize(kColumnName);
  headings->resizeSection(kColumnName, std::min(name, std::max(name - beyond, kNarrowestName)));
}

void ResultTable::resizeEvent(QResizeEvent* event) {
  QTableView::resizeEvent(event);
  fitColumns();
}
