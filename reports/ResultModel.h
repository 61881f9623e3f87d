#pragma once

#include <QAbstractTableModel>
#include <memory>

#include "reports/ResultList.h"

/// The result list for the screen. A query fills a new list while the list before it is kept, until
/// the new one is complete.
class ResultModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  explicit ResultModel(QObject* parent = nullptr);

  /// The list shown; none before the first query.
  std::shared_ptr<const ResultList> list() const { return list_; }
  /// Whether the list shown is not complete yet.
  bool isFilling() const { return filling_; }

  /// Adds lines to the new list, which shows from its first page on.
  void append(const SoldPage& page);
  /// Completes the new list, an empty one if there was no page.
  void complete();
  /// Drops the new list and shows the one before it again.
  void restore();

  /// The column heading was chosen: by turns descending and ascending, the first time descending.
  /// Choosing the same column again turns the order of the rows round.
  void sortBy(int column);
  /// The order of the last sort, for the mark in the heading.
  bool isDescending() const { return descending_; }

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  void begin();

  std::shared_ptr<ResultList> list_;
  std::shared_ptr<ResultList> before_;
  bool filling_ = false;
  bool descending_ = false;
  int sortColumn_ = -1;  ///< of the list shown; -1: in the query's order
};
