#pragma once

#include <filesystem>

#include "reports/ExportRun.h"
#include "reports/SearchCriteria.h"
#include "saleslib/Permission.h"
#include "shell/KeyDrivenDialog.h"

class LineQuery;
class ResultTable;
class SearchPanel;
class posMod;
struct SoldPage;

/// The sales query: sold lines of a period by item, category or bill, with their totals, to look
/// through, sort, print and export. Shown modally with exec(); a new one per use.
///
/// A long query or export runs beside the form, which says so; the mapped Esc key stops it and
/// leaves the list as it was, and else closes the form. The mapped Enter key presses the button
/// that has the focus, or searches from the criteria. In the list the blank key sorts by the
/// current column. A button prints the last bill's receipt again at once.
class frmSearch : public KeyDrivenDialog {
  Q_OBJECT

 public:
  explicit frmSearch(posMod& pos, QWidget* parent = nullptr);

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  bool handleKey(const QObject* watched, const QKeyEvent& event) override;
  void cancel() override;

 private:
  void build();
  void load();
  void connectQuery();

  void checkOrder(const SearchCriteria& wanted);
  bool mayQuery();
  void searchWanted();
  void search();
  bool takesSlips() const;
  void addPage(const SoldPage& page);
  void showAll();
  void stopQuery();
  void showFailure(const QString& why);
  void sortBy(int column);
  QString escKey() const;

  bool hasList(const QString& otherwise);
  void printReport();
  void reprintWanted();
  void printReceipt();
  void reprintLastBill();
  template <class Document>
  void print(const Document& document);
  void exportList();
  void exportTo(const std::filesystem::path& file);

  posMod& pos_;
  SearchPanel* Frame5_;
  ResultTable* ListView1_;
  LineQuery* query_;
  ExportRun export_;
  SearchCriteria asked_;   ///< by the query that runs
  SearchCriteria found_;   ///< by the query that filled the list
  Permit queryLeave_;      ///< to query and export, once it was asked for
  Permit printWhenFound_;  ///< to print a receipt of what the running query finds; none: don't
};
