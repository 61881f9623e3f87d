#pragma once

#include <QColor>
#include <QDialog>
#include <functional>
#include <vector>

#include "shell/MenuItem.h"

class KeyBoard;
class MenuEntries;
class QLabel;

/// The keyboard-driven popup menu: a vertical list of entries, one highlighted. It never leaves the
/// screen: with more entries than fit it scrolls with the highlight, and it paints only what shows,
/// so that ten thousand entries open at once; a caption wider than the screen is cut with "...". A
/// window title set by the owner heads the list. Lengths are in twips.
class frmMenu : public QDialog {
  Q_OBJECT

 public:
  explicit frmMenu(const KeyBoard& keys, QWidget* parent = nullptr);

  /// Appends an entry.
  void AddMenu(const QString& MenuText, const QString& Key);
  /// Appends `count` entries with the keys "1", "2" and so on. Where they are more than anybody
  /// reads, a caption is asked for when its entry comes into view, and the menu is as wide as the
  /// screen.
  void AddMenus(int count, const std::function<QString(int position)>& caption);
  /// A small line under the entries.
  void setFooter(const QString& text);
  /// Shows the menu modally and returns the chosen entry's key, "" when it was left with Esc.
  /// A Mode other than 0 makes it impossible to leave with Esc. Without entries: a message.
  QString ShowMenu(int Mode);

  /// Called with the chosen entry after the menu is hidden and before ShowMenu returns.
  std::function<void(const MenuItem& Menu)> MenuClick;
  /// Called when the window itself is closed, from the window manager's close button.
  std::function<void()> closed;
  /// Called for the menu key, F10 or a right click while the menu shows; the menu stays.
  std::function<void()> furtherMenu;

  enum Align { kLeft = 0, kRight = 1, kCentre = 2 };
  int Alignment() const;
  void setAlignment(int alignment);  ///< of entries added afterwards
  int Space() const;
  void setSpace(int twips);  ///< for entries added afterwards
  /// Place of the menu's window on the screen; in the middle unless set.
  int BoxTop() const;
  void setBoxTop(int twips);
  int BoxLeft() const;
  void setBoxLeft(int twips);
  QColor mnuBack() const;
  void setmnuBack(const QColor& colour);
  QColor mnuFore() const;
  void setmnuFore(const QColor& colour);
  QColor mnuActiveBack() const;
  void setmnuActiveBack(const QColor& colour);
  QColor mnuActiveFore() const;
  void setmnuActiveFore(const QColor& colour);

  int entryCount() const;
  int currentIndex() const;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  void placeOnScreen();
  void moveHighlight(int step);
  void choose(int index);

  const KeyBoard& keys_;
  QLabel* heading_;
  QLabel* footer_;
  MenuEntries* entries_;
  int mode_ = 0;
  int chosen_ = -1;  ///< position of the chosen entry while the menu is being left
  int alignment_ = kLeft;
  int space_ = 50;
  bool placed_ = false;  ///< by BoxTop or BoxLeft
};
