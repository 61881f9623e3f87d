#pragma once

#include <QWidget>
#include <functional>
#include <memory>

#include "checkout/SaleScreen.h"
#include "sale/SaleSession.h"

class BillModel;
class QLabel;
class QLineEdit;
class QTableView;
class frmEndSell;
class frmInput;
class frmMenu;
class posMod;

/// The sale screen: a thin skin that draws a SaleSession and turns keys into its calls. It fills the
/// screen and closes only through ExitSale.
class frmSell : public QWidget, private SaleScreen {
  Q_OBJECT

 public:
  /// `endProgram` ends the program at once.
  frmSell(posMod& pos, SaleSession::Openers openers, std::function<void()> endProgram,
          QWidget* parent = nullptr);
  ~frmSell() override;

  /// Shows the screen modally; returns when it has been left.
  void openModal();
};
