#pragma once

#include <QCoreApplication>
#include <QString>
#include <filesystem>
#include <map>
#include <memory>

#include "app/QuietCheckpoint.h"
#include "app/posMod.h"
#include "sale/SaleSession.h"
#include "shell/frmMain.h"

class ControlKeys;
class GoodsCompletion;
class frmSell;

/// The whole program: the process-wide objects, the main window, and the table that says which
/// screen each menu entry opens.
class Till {
  Q_DECLARE_TR_FUNCTIONS(Till)

 public:
  /// `folder` is the shop's (base/ShopFolder.h).
  explicit Till(std::filesystem::path folder);
  ~Till();

  /// Opens the data file, starts the services and shows the main window. Where there is no data
  /// file, a shop can be made first. False when none could be opened; the message has been shown
  /// then. Throws Failure.
  [[nodiscard]] bool Main();

 private:
  /// Makes a shop where there is no data file, if it is wanted, and opens it. False when none was.
  bool firstStart();
  /// The screens of the main window's menus, and those that the sale screen opens.
  std::map<QString, frmMain::Screen> screens();
  /// Those that need no shop parameter.
  std::map<QString, frmMain::Screen> fixedScreens();
  SaleSession::Openers saleScreens();
  void reportTakings();
  /// The sale screen on a data file that nobody keeps.
  void practise();
  void showJournal();
  void help();
  /// Shows a dialog made for the occasion, over whichever window is in front.
  template <class Form>
  static void show(posMod& pos);

  posMod pos_;
  std::unique_ptr<QuietCheckpoint> checkpoint_;
  std::unique_ptr<GoodsCompletion> completion_;  ///< of an import, if one waits
  std::unique_ptr<ControlKeys> controlKeys_;
  std::unique_ptr<frmSell> frmSell_;  ///< one instance for every opening
  std::unique_ptr<frmMain> frmMain_;
};
