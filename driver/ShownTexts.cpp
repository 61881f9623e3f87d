#include "ShownTexts.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>

namespace {

constexpr int kMostRows = 200;

void addRows(QStringList& texts, const QAbstractItemView& view) {
  const QAbstractItemModel* model = view.model();
  if (model == nullptr || qobject_cast<const QHeaderView*>(&view) != nullptr) return;
  for (int column = 0; column < model->columnCount(); ++column) {
    texts << model->headerData(column, Qt::Horizontal).toString();
    for (int row = 0; row < qMin(kMostRows, model->rowCount()); ++row)
      texts << model->index(row, column).data().toString();
  }
}

void addControl(QStringList& texts, const QWidget& control) {
  texts << control.accessibleName();
  if (const auto* label = qobject_cast<const QLabel*>(&control)) texts << label->text();
  if (const auto* button = qobject_cast<const QAbstractButton*>(&control)) texts << button->text();
  if (const auto* choice = qobject_cast<const QComboBox*>(&control)) texts << choice->currentText();
  if (const auto* line = qobject_cast<const QLineEdit*>(&control)) texts << line->displayText();
  if (const auto* group = qobject_cast<const QGroupBox*>(&control)) texts << group->title();
  if (const auto* view = qobject_cast<const QAbstractItemView*>(&control)) addRows(texts, *view);
}

}  // namespace

QStringList shownTexts(const QWidget& window) {
  QStringList texts{window.windowTitle()};
  for (const QWidget* control : window.findChildren<QWidget*>()) {
    if (control->isVisible()) addControl(texts, *control);
  }
  texts.removeAll(QString());
  return texts.replaceInStrings(QStringLiteral("&"), QString());
}
