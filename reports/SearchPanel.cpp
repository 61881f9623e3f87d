#include "reports/SearchPanel.h"

#include <QCalendarWidget>
#include <QComboBox>
#include <QDateEdit>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTimeEdit>

namespace {

/// What the category box shows at least.
constexpr int kCategoryCharacters = 5;

template <class Control>
Control* named(Control* control, const char* name) {
  control->setObjectName(name);
  return control;
}

QDateEdit* datePicker(const char* name) {
  auto* picker = named(new QDateEdit, name);
  picker->setDisplayFormat("yyyy-MM-dd");
  picker->setDateRange(QDate(1, 1, 1), QDate(9999, 12, 31));
  picker->setCalendarPopup(true);
  // Dates are typed in the field. Typed in the calendar they would leak when it is closed on them.
  picker->calendarWidget()->setDateEditEnabled(false);
  return picker;
}

QTimeEdit* timePicker(const char* name, const QTime& time) {
  auto* picker = named(new QTimeEdit(time), name);
  picker->setDisplayFormat("HH:mm:ss");
  return picker;
}

/// A control with its share of the room that is left over.
struct Share {
  QWidget* control;
  int stretch = 0;
};

QHBoxLayout* row(std::initializer_list<Share> shares) {
  auto* layout = new QHBoxLayout;
  for (const Share& share : shares) layout->addWidget(share.control, share.stretch);
  return layout;
}

}  // namespace

// The controls are made in the order in which the eye meets them, which is the order of the Tab
// key.
SearchPanel::SearchPanel(QWidget* parent) : QFrame(parent) {
  setObjectName("Frame5");
  setFrameShape(QFrame::StyledPanel);
  makeControls();
  makeButtons();

  QHBoxLayout* period = row({{label("Label1", tr("查询从"))},
                             {DtBegin},
                             {DTPBeginTime},
                             {label("Label2", tr("到"))},
                             {Dtfinish},
                             {DtfinishTime}});
  period->addStretch();
  period->addWidget(Option1);
  period->addWidget(Option2);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(period);
  layout->addLayout(row({{label("Label3", tr("助记码/条码"))},
                         {zjmtm, 3},
                         {label("Label4", tr("销售数量<="))},
                         {xssl, 1},
                         {label("Label5", tr("按单号查询"))},
                         {numberSerch, 2},
                         {Combo1, 3}}));
  layout->addLayout(row(
      {{cmdSearch}, {Command1}, {Command2}, {Command3}, {Command4}, {lblState, 1}, {prgState, 1}}));
}

void SearchPanel::makeControls() {
  DtBegin = datePicker("DtBegin");
  DTPBeginTime = timePicker("DTPBeginTime", QTime(0, 0, 0));
  Dtfinish = datePicker("Dtfinish");
  DtfinishTime = timePicker("DtfinishTime", QTime(23, 59, 59));
  Option1 = named(new QRadioButton(tr("按单品查看")), "Option1");
  Option1->setChecked(true);
  Option2 = named(new QRadioButton(tr("按分类查看")), "Option2");
  zjmtm = named(new QLineEdit, "zjmtm");
  xssl = named(new QLineEdit("0"), "xssl");
  numberSerch = named(new QLineEdit, "numberSerch");
  Combo1 = named(new QComboBox, "Combo1");
  Combo1->setEditable(true);
  Combo1->setInsertPolicy(QComboBox::NoInsert);
  Combo1->setCompleter(nullptr);  // what is typed is what is looked for
  Combo1->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  Combo1->setMinimumContentsLength(kCategoryCharacters);
  Combo1->setEditText(tr("请选择类别"));
}

void SearchPanel::makeButtons() {
  cmdSearch = named(new QPushButton(tr("查询")), "cmdSearch");
  Command1 = named(new QPushButton(tr("导出excel")), "Command1");
  Command2 = named(new QPushButton(tr("用小票打印报表")), "Command2");
  Command3 = named(new QPushButton(tr("补打小票")), "Command3");
  Command4 = named(new QPushButton(tr("退出")), "Command4");
  lblState = label("lblState", {});
  lblState->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);  // pushes no button
  prgState = named(new QProgressBar, "prgState");
  prgState->setTextVisible(false);
  prgState->hide();
}

QLabel* SearchPanel::label(const char* name, const QString& text) {
  auto* made = named(new QLabel(text), name);
  made->setTextFormat(Qt::PlainText);
  return made;
}
