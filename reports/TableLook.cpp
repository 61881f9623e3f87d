#include "reports/TableLook.h"

#include <QHeaderView>
#include <QTableView>

void lookLikeReport(QTableView& list) {
  list.setSelectionBehavior(QAbstractItemView::SelectRows);
  list.setSelectionMode(QAbstractItemView::SingleSelection);
  list.setEditTriggers(QAbstractItemView::NoEditTriggers);
  list.setTabKeyNavigation(false);
  list.setAlternatingRowColors(true);
  list.setShowGrid(true);
  list.setWordWrap(false);
  list.setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
  list.verticalHeader()->hide();
  list.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  list.verticalHeader()->setDefaultSectionSize(list.fontMetrics().height() + 6);
  list.horizontalHeader()->setHighlightSections(false);
  list.horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}
