#pragma once

#include <QFrame>

#include "reports/SearchCriteria.h"

class DateField;
class QComboBox;
class QLabel;
class QLineEdit;
class QProgressBar;
class QPushButton;
class QRadioButton;
class TimeField;
struct LastBill;

/// What stands above the list of the sales query: the criteria, the buttons, and what is going on.
class SearchPanel : public QFrame {
  Q_OBJECT

 public:
  explicit SearchPanel(QWidget* parent);

  /// Whether dates and times are some; else the first that is none is said and has the focus. What
  /// follows is of those that were some at the last check.
  [[nodiscard]] bool check();
  /// A quantity limit that is no number becomes 0, with the focus there.
  void checkQuantityLimit();
  DateTime start() const;
  DateTime end() const;
  /// As typed; an empty period is the day from its start on.
  SearchCriteria criteria() const;
  /// The field of the bill number says that it takes slips' codes too.
  void askForSlips();
  /// Criteria that find this bill.
  void lookFor(const LastBill& bill);

  /// Tells that something goes on; `all` 0: nobody knows how much there is to do.
  void showWork(const QString& what, std::size_t done, std::size_t all);
  void showIdle(const QString& what);

  DateField* DtBegin;
  TimeField* DTPBeginTime;
  DateField* Dtfinish;
  TimeField* DtfinishTime;
  QRadioButton* Option1;   ///< by item
  QRadioButton* Option2;   ///< by category
  QLineEdit* zjmtm;        ///< barcode or code fragment
  QLineEdit* xssl;         ///< quantity limit
  QLineEdit* numberSerch;  ///< bill number
  QComboBox* Combo1;       ///< category
  QPushButton* cmdSearch;
  QPushButton* Command1;  ///< export
  QPushButton* Command2;  ///< report
  QPushButton* Command3;  ///< reprint
  QPushButton* cmdLast;   ///< reprint of the last bill
  QPushButton* Command4;  ///< exit
  QLabel* lblState;
  QProgressBar* prgState;

 private:
  void makeControls();
  void makeButtons();
  QLabel* label(const char* name, const QString& text);
};
