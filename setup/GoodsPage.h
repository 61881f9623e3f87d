#pragma once

#include <QString>
#include <array>

#include "base/DateTime.h"
#include "setup/SetupPage.h"

class FileField;

/// Goods from files, typed, or none yet. What is answered is tried before the page is left, and can
/// be looked at before.
class GoodsPage : public SetupPage {
  Q_OBJECT

 public:
  GoodsPage(SetupAnswers& answers, Clock clock);
  QString title() const override { return tr("商品"); }
  QString take() override;

 private:
  struct Row {
    QLineEdit *barcode, *name, *price;
  };
  FileField* file(const char* name, const QString& caption);
  QWidget* typedRows();
  /// Takes what was typed; else why not.
  QString takeRows();
  QString takeFile(const char* table, FileField& file);
  void look();

  Clock clock_;
  FileField *master_, *barcodes_;
  std::array<Row, 4> rows_;
  QLabel* preview_;
};
