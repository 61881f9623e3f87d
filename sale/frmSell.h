#pragma once

#include <QTimer>
#include <QWidget>
#include <functional>
#include <memory>

#include "sale/SaleMessages.h"
#include "sale/SalePicture.h"
#include "sale/SaleSession.h"
#include "sale/SellControls.h"

class BillModel;
class QEventLoop;
class frmEndSell;
class frmInput;
class frmMenu;
class frmRecord;
class posMod;

/// The sale screen: a thin skin that draws a SaleSession and turns keys into its calls. It fills
/// the screen and closes only through ExitSale. One instance serves every opening; each opening is
/// a session of its own.
class frmSell : public QWidget, private SaleScreen {
  Q_OBJECT

 public:
  /// `endProgram` ends the program at once.
  frmSell(posMod& pos, SaleSession::Openers openers, std::function<void()> endProgram,
          QWidget* parent = nullptr);
  ~frmSell() override;

  /// Shows the screen modally; returns when it has been left. Needs an operator. Throws StoreError.
  void openModal();
  /// The screen is one to practise at: its heading says so, on a coloured band. Before it opens.
  void showPractice();
  /// Opens the function menu: the menu key or a right click.
  void ShowSaleMenu();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  void show(const SalePicture& picture) override;
  void ShowMessage(const QString& text) override;
  void messageBox(const QString& text, const QString& title) override;
  bool askYesNo(const QString& text, const QString& title, bool yesPreselected) override;
  Permit leave(const Deed& deed) override;
  QString prompt(const QString& title, const QString& message) override;
  int choose(int count, const std::function<QString(int position)>& caption) override;
  std::int32_t chooseHeldBill(const std::vector<std::shared_ptr<ClsSell>>& bills) override;
  bool settle(Settlement& settlement) override;
  void endProgram() override;

  void begin();
  QString heading() const;
  void finish();
  void arrange();
  void showInput(const SalePicture& picture);
  void moveEditor();
  void showTime();
  bool keyPressed(QKeyEvent& event);
  void afterCommand();

  posMod& pos_;
  SaleMessages messages_{this};
  SaleSession::Openers openers_;
  std::function<void()> endProgram_;
  std::unique_ptr<SaleSession> session_;  ///< while the screen is open
  std::unique_ptr<BillModel> model_;
  QEventLoop* loop_ = nullptr;
  bool ended_ = false;  ///< the program is ending
  SalePicture shown_;   ///< without its rows, which the model keeps

  SellControls controls_{this};
  std::unique_ptr<frmMenu> myMenu_;
  frmEndSell* endSell_ = nullptr;  ///< made on first use, like the next two
  frmInput* input_ = nullptr;
  frmRecord* record_ = nullptr;
  QTimer Timer1_;
};
