#pragma once

#include <QFrame>

class QComboBox;
class QDateEdit;
class QLabel;
class QLineEdit;
class QProgressBar;
class QPushButton;
class QRadioButton;
class QTimeEdit;

/// What stands above the list of the sales query: the criteria, the buttons, and what is going on.
class SearchPanel : public QFrame {
  Q_OBJECT

 public:
  explicit SearchPanel(QWidget* parent);

  QDateEdit* DtBegin;
  QTimeEdit* DTPBeginTime;
  QDateEdit* Dtfinish;
  QTimeEdit* DtfinishTime;
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
  QPushButton* Command4;  ///< exit
  QLabel* lblState;
  QProgressBar* prgState;

 private:
  void makeControls();
  void makeButtons();
  QLabel* label(const char* name, const QString& text);
};
