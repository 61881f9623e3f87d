#pragma once

#include <QWidget>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include "base/DateTime.h"
#include "saleslib/Right.h"
#include "shell/MenuItem.h"

class QLabel;
class frmLogin;
class frmMenu;
class posMod;

/// The main window: the main menu over a quiet background, and one help line. It opens screens
/// through a table of openers given to it, and asks for a login before each protected one. The menu
/// comes back after every action; closing the window, however it happens, ends the program with the
/// log-off and the backup.
class frmMain : public QWidget {
  Q_OBJECT

 public:
  /// Opens one screen modally and returns when it is closed.
  using Opener = std::function<void()>;
  struct Screen {
    bool needsLogin;
    Opener open;
    std::optional<Right> right = {};  ///< needed to open it; implies needsLogin
  };
  /// By menu key: "sell", "count", "search", "posset", "keyset", "addmen", "editpwd", "unsell",
  /// "goodsin", "report", "journal", "shift", "practice", "help". A menu entry whose screen is not
  /// in the table is not shown.
  frmMain(posMod& pos, std::map<QString, Screen> screens, QWidget* parent = nullptr);
  ~frmMain() override;

  /// The entries of the main menu and of the further one, in their order: caption and key.
  using Entries = std::vector<std::pair<QString, QString>>;
  static Entries mainEntries();
  static Entries furtherEntries();

  /// Dispatches a menu entry by its Key; an unknown key does nothing.
  void theMenu_MenuClick(const MenuItem& Menu);

 protected:
  bool event(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void timerEvent(QTimerEvent* event) override;

 private:
  void fillMenus();
  void addScreens(frmMenu& menu, const Entries& entries);
  void queueMenu();
  void showMenu();
  void showFurtherMenu();
  QString menuFooter() const;
  void applyColours();
  void paintVersion(QPainter& painter) const;
  void openScreen(const Screen& screen);
  bool someoneLoggedIn();
  void changeOperator();
  /// Logs the operator off and makes the backup, and says what of it could not be done.
  void endOfWork();

  posMod& pos_;
  std::map<QString, Screen> screens_;
  frmLogin* login_;
  std::unique_ptr<frmMenu> theMenu_;
  frmMenu* furtherMenu_;
  QLabel* Label1_;  ///< the help line
  Date dateShown_;
  bool showMenu_ = true;  ///< off while a chosen action runs
  bool menuQueued_ = false;
  bool menuShowing_ = false;
  bool ended_ = false;
  MenuItem furtherChoice_;  ///< chosen in the further menu, dispatched when the main menu has gone
};
