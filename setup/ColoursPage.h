#pragma once

#include <array>

#include "setup/SetupPage.h"

class QFrame;

/// Six colours of the sale screen that read well together.
struct Palette {
  const char* name;
  std::array<int, 6> colours;  ///< C1 ... C6, 0x00BBGGRR

  void paint(ClsPosSet& till) const;
};
const std::array<Palette, 3>& palettes();

/// One of the palettes, shown as the sale screen would have it.
class ColoursPage : public SetupPage {
  Q_OBJECT

 public:
  explicit ColoursPage(SetupAnswers& answers);
  QString title() const override { return tr("颜色"); }
  QString take() override;

 private:
  void show();

  QComboBox* cobPalette_;
  QFrame* sample_;
  QLabel *heading_, *second_, *sale_, *member_;
};
