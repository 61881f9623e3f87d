#pragma once

#include <QDialog>
#include <functional>
#include <optional>

#include "base/DateTime.h"
#include "reports/ExportRun.h"
#include "reports/SearchCriteria.h"

class LineQuery;
class QTableView;
class ResultModel;
class SearchPanel;
class posMod;
struct PageDocument;
struct SoldPage;

/// The sales query: sold lines of a period by item, category or bill, with their totals, to look
/// through, sort, print and export. Shown modally with exec(); a new one per use.
///
/// A long query or export runs beside the form, which says so; the mapped Esc key stops it and
/// leaves the list as it was, and else closes the form. The mapped Enter key presses the button
/// that has the focus, or searches from the criteria. In the list the blank key sorts by the
/// current column.
class frmSearch : public QDialog {
  Q_OBJECT

 public:
  explicit frmSearch(posMod& pos, QWidget* parent = nullptr);

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void build();
  void load();
  void connectQuery();
  bool keyTaken(int key);

  DateTime shownStart() const;
  DateTime shownEnd() const;
  SearchCriteria criteria() const;
  void checkPeriod(const SearchCriteria& wanted);
  void checkQuantityLimit();
  void search();
  void addPage(const SoldPage& page);
  void showAll();
  void fitColumns();
  void stopQuery();
  void showFailure(const QString& why);
  void sortBy(int column);

  bool hasList(const QString& otherwise);
  void printReport();
  void printReceipt();
  void print(const PageDocument& page);
  void exportList();
  void exportTo(const QString& file);
  void showWork(const QString& what, int done, int all);
  void showIdle(const QString& what);

  posMod& pos_;
  SearchPanel* Frame5_;
  QTableView* ListView1_;
  ResultModel* model_;
  LineQuery* query_;
  ExportRun export_;
  SearchCriteria asked_;  ///< by the query that runs
  SearchCriteria found_;  ///< by the query that filled the list
  struct Place {
    int row, column, scrolled;
  };
  std::optional<Place> placeBefore_;  ///< in the list that a running query replaces
};
