#pragma once

#include <array>
#include <cstddef>

#include "shell/KeyDrivenDialog.h"

class QColorDialog;
class QGridLayout;
class QLabel;
class QLineEdit;
class posMod;

/// The six colours of the sale screen, as decimal numbers 0x00BBGGRR, each beside the colour
/// itself. An empty box stands for its default. "确定" saves; a box that holds no number is said
/// and ends it: the boxes above are then already in force, none is saved, and the dialog stays
/// open.
class frmColor : public KeyDrivenDialog {
  Q_OBJECT

 public:
  explicit frmColor(posMod& pos, QWidget* parent = nullptr);

 private:
  static constexpr std::size_t kColours = 6;

  QWidget* colourFrame();
  QWidget* buttonFrame();
  void addRow(QGridLayout& grid, std::size_t index);
  void showSwatch(std::size_t index);
  void choose(std::size_t index);
  void save();

  posMod& pos_;
  QColorDialog* cdColor_ = nullptr;
  int dialogColour_ = 0;  ///< what the colour dialog was left with
  std::array<QLineEdit*, kColours> boxes_{};
  std::array<QLabel*, kColours> swatches_{};
};
