#pragma once

#include <QTableWidget>

struct GoodsPreview;

/// What a sheet would do, a row for each of its rows that somebody may want to look at: what is
/// refused first, then what is likely wrong, what changes and what is new.
class PreviewTable : public QTableWidget {
  Q_OBJECT

 public:
  explicit PreviewTable(QWidget* parent);

  void show(const GoodsPreview& preview);

  enum Column { kLine, kKind, kItemCode, kName, kWhat, kColumns };

 private:
  void add(std::int64_t line, const QString& kind, const QString& itemCode, const QString& name,
           const QString& what, bool isWarning);
  void addMore(std::int64_t count, std::size_t listed, const QString& kind);
};

/// The counts in one line.
QString summaryOf(const GoodsPreview& preview);
