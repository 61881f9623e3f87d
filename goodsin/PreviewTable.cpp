#include "goodsin/PreviewTable.h"

#include <QHeaderView>

#include "platform/QtText.h"
#include "shell/ShownText.h"
#include "shop/GoodsPreview.h"

namespace {

QString textOf(const std::string& text) {
  return shownText(qtText(text));
}

QString changeOf(const GoodsPreview::Article& article) {
  QStringList changes;
  if (!article.oldPrice.empty()) {
    changes +=
        PreviewTable::tr("零售价 %1 → %2").arg(qtText(article.oldPrice), qtText(article.newPrice));
  }
  for (const std::string& field : article.otherFields) changes += qtText(field);
  return changes.join(PreviewTable::tr("、"));
}

}  // namespace

PreviewTable::PreviewTable(QWidget* parent) : QTableWidget(0, kColumns, parent) {
  setHorizontalHeaderLabels({tr("行"), tr("结果"), tr("商品编码"), tr("名称"), tr("内容")});
  setSelectionBehavior(QAbstractItemView::SelectRows);
  setSelectionMode(QAbstractItemView::SingleSelection);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setTabKeyNavigation(false);
  setAlternatingRowColors(true);
  setWordWrap(false);
  verticalHeader()->hide();
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
  horizontalHeader()->setHighlightSections(false);
  horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  horizontalHeader()->setStretchLastSection(true);
}

void PreviewTable::show(const GoodsPreview& preview) {
  setRowCount(0);
  for (const auto& each : preview.refused)
    add(each.line, tr("不能导入"), {}, {}, textOf(each.reason), true);
  addMore(preview.refusedCount, preview.refused.size(), tr("不能导入"));
  for (const auto& each : preview.doubts)
    add(each.line, tr("可能有错"), {}, {}, textOf(each.reason), true);
  addMore(preview.doubtCount, preview.doubts.size(), tr("可能有错"));
  for (const auto& each : preview.changed)
    add(each.line, tr("改动"), textOf(each.itemCode), textOf(each.name), changeOf(each), false);
  addMore(preview.changedCount, preview.changed.size(), tr("改动"));
  for (const auto& each : preview.added) {
    add(each.line, tr("新增"), textOf(each.itemCode), textOf(each.name),
        tr("零售价 %1").arg(qtText(each.newPrice)), false);
  }
  addMore(preview.addedCount, preview.added.size(), tr("新增"));
  constexpr int kColumnAir = 12, kWidestColumn = 320;  // pixels
  resizeColumnsToContents();
  for (int column = 0; column < kColumns; ++column)
    setColumnWidth(column, std::min(columnWidth(column) + kColumnAir, kWidestColumn));
  if (rowCount() > 0) setCurrentCell(0, 0);
}

void PreviewTable::add(std::int64_t line, const QString& kind, const QString& itemCode,
                       const QString& name, const QString& what, bool isWarning) {
  const int row = rowCount();
  insertRow(row);
  const QString texts[kColumns] = {line > 0 ? QString::number(line) : QString(), kind, itemCode,
                                   name, what};
  for (int column = 0; column < kColumns; ++column) {
    auto* cell = new QTableWidgetItem(texts[column]);
    cell->setToolTip(texts[column]);
    if (isWarning) cell->setForeground(QColor(0xb0, 0x20, 0x10));
    setItem(row, column, cell);
  }
}

void PreviewTable::addMore(std::int64_t count, std::size_t listed, const QString& kind) {
  const auto more = count - static_cast<std::int64_t>(listed);
  if (more > 0) add(0, kind, {}, {}, tr("……还有 %1 行").arg(more), false);
}

QString summaryOf(const GoodsPreview& preview) {
  QString counts = PreviewTable::tr("新增 %1 行，改动 %2 行，不变 %3 行")
                       .arg(preview.addedCount)
                       .arg(preview.changedCount)
                       .arg(preview.unchangedCount);
  if (preview.mayBeWritten()) return counts;
  return PreviewTable::tr("%1，不能导入 %2 行").arg(counts).arg(preview.refusedCount);
}
