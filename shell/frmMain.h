#pragma once

#include <QWidget>
#include <functional>
#include <map>

#include "shell/MenuItem.h"

class frmLogin;
class frmMenu;
class posMod;

/// The main window: the main menu over a quiet background, and one help line. It opens screens
/// through a table of openers given to it, and asks for a login before each protected one.
class frmMain : public QWidget {
  Q_OBJECT

 public:
  /// Opens one screen modally and returns when it is closed.
  using Opener = std::function<void()>;
  struct Screen {
    bool needsLogin;
    Opener open;
  };
  /// By menu key: "sell", "count", "search", "posset", "keyset", "addmen", "editpwd", "unsell". A
  /// menu entry whose screen is not in the table is not shown.
  frmMain(posMod& pos, std::map<QString, Screen> screens, QWidget* parent = nullptr);

  /// Dispatches a menu entry by its Key; an unknown key does nothing.
  void theMenu_MenuClick(const MenuItem& Menu);

 protected:
  bool event(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
};
