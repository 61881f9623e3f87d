#pragma once

#include <QTableView>
#include <memory>
#include <optional>

class ResultList;
class ResultModel;
struct SoldPage;

/// The list of the sales query. Its columns are as wide as what they hold; the name gives way, so
/// that a line's amounts can be read without scrolling sideways.
class ResultTable : public QTableView {
  Q_OBJECT

 public:
  explicit ResultTable(QWidget* parent);

  /// The list shown; none before the first query.
  std::shared_ptr<const ResultList> list() const;
  int lineCount() const;

  /// What a query finds, see ResultModel.
  void append(const SoldPage& page);
  void complete();
  /// Shows the list before the query again, at the place where it was left.
  void restore();
  /// By turns descending and ascending.
  void sortBy(int column);

 signals:
  void headingClicked(int column);

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void fitColumns();

  ResultModel* model_;
  struct Place {
    int row, column, scrolled;
  };
  std::optional<Place> placeBefore_;  ///< in the list that a running query replaces
};
