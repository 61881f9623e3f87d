#pragma once

#include <QTranslator>

/// The colour dialog of the toolkit in Chinese.
class ColourDialogTexts : public QTranslator {
  Q_OBJECT

 public:
  using QTranslator::QTranslator;
  bool isEmpty() const override { return false; }
  QString translate(const char* context, const char* sourceText, const char* disambiguation,
                    int n) const override;
};
