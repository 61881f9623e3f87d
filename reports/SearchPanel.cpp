#include "reports/SearchPanel.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <algorithm>

#include "base/NumberText.h"
#include "reports/LastBill.h"
#include "shell/DateField.h"
#include "shell/TimeField.h"

namespace {

/// What the category box shows at least.
constexpr int kCategoryCharacters = 5;

template <class Control>
Control* named(Control* control, const char* name) {
  control->setObjectName(name);
  return control;
}

/// As wide as its text.
template <class Field>
Field* picker(Field* field, const char* name) {
  field->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  return named(field, name);
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
  QLabel* billCaption = label("Label5", tr("按单号查询(&N)"));
  billCaption->setBuddy(numberSerch);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(period);
  layout->addLayout(row({{label("Label3", tr("助记码/条码"))},
                         {zjmtm, 3},
                         {label("Label4", tr("销售数量<="))},
                         {xssl, 1},
                         {billCaption},
                         {numberSerch, 2},
                         {Combo1, 3}}));
  layout->addLayout(row({{cmdSearch}, {Command1}, {Command2}, {Command3}, {cmdLast}, {Command4}}));
  layout->addLayout(row({{lblState, 2}, {prgState, 1}}));
}

void SearchPanel::makeControls() {
  DtBegin = picker(new DateField, "DtBegin");
  DTPBeginTime = picker(new TimeField(0, 0, 0), "DTPBeginTime");
  Dtfinish = picker(new DateField, "Dtfinish");
  DtfinishTime = picker(new TimeField(23, 59, 59), "DtfinishTime");
  Option1 = named(new QRadioButton(tr("按单品查看(&I)")), "Option1");
  Option1->setChecked(true);
  Option2 = named(new QRadioButton(tr("按分类查看(&C)")), "Option2");
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
  cmdSearch = named(new QPushButton(tr("查询(&Q)")), "cmdSearch");
  Command1 = named(new QPushButton(tr("导出excel(&E)")), "Command1");
  Command2 = named(new QPushButton(tr("用小票打印报表(&R)")), "Command2");
  Command3 = named(new QPushButton(tr("补打小票(&P)")), "Command3");
  cmdLast = named(new QPushButton(tr("补打上一单(&L)")), "cmdLast");
  Command4 = named(new QPushButton(tr("退出(&X)")), "Command4");
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

bool SearchPanel::check() {
  const std::initializer_list<CheckedField*> fields = {DtBegin, DTPBeginTime, Dtfinish,
                                                       DtfinishTime};
  return std::all_of(fields.begin(), fields.end(), [](auto* field) { return field->check(); });
}

void SearchPanel::checkQuantityLimit() {
  if (parseNumber(xssl->text().toStdString())) return;
  xssl->setText("0");
  xssl->setFocus();
}

DateTime SearchPanel::start() const {
  return DTPBeginTime->on(DtBegin->date());
}

DateTime SearchPanel::end() const {
  return DtfinishTime->on(Dtfinish->date());
}

SearchCriteria SearchPanel::criteria() const {
  SearchCriteria wanted;
  wanted.start = start();
  wanted.end = end();
  if (wanted.start == wanted.end) wanted.end.date = plusDays(wanted.end.date, 1);
  wanted.byCategory = Option2->isChecked();
  wanted.code = zjmtm->text().toStdString();
  wanted.billNo = numberSerch->text().toStdString();
  wanted.category = Combo1->currentText().toStdString();
  return wanted;
}

void SearchPanel::askForSlips() {
  findChild<QLabel*>("Label5")->setText(tr("单号/付款码(&N)"));
}

// A line is found when it is later than the start, which may be midnight.
void SearchPanel::lookFor(const LastBill& bill) {
  DtBegin->setDate(plusDays(bill.firstDay, -1));
  DTPBeginTime->setTime(23, 59, 59);
  Dtfinish->setDate(bill.lastDay);
  DtfinishTime->setTime(23, 59, 59);
  Option1->setChecked(true);
  zjmtm->clear();
  numberSerch->setText(QString::number(bill.number));
}

void SearchPanel::showWork(const QString& what, std::size_t done, std::size_t all) {
  lblState->setText(what);
  prgState->setRange(0, static_cast<int>(all));
  prgState->setValue(static_cast<int>(done));
  prgState->show();
}

void SearchPanel::showIdle(const QString& what) {
  lblState->setText(what);
  prgState->hide();
}
