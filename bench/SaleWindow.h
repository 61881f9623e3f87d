#pragma once

#include <QString>
#include <functional>
#include <memory>
#include <string>

#include "app/QuietCheckpoint.h"
#include "app/posMod.h"
#include "bench/PaintWatch.h"
#include "bench/SyncCount.h"

class frmSell;

/// The real sale window, worked by key events as they come from the window system.
class SaleWindow {
 public:
  /// On a shop's folder; the screen is not open yet.
  explicit SaleWindow(const std::filesystem::path& folder);
  ~SaleWindow();

  /// Opens the screen, lets the cashier work, leaves it.
  void open(const std::function<void()>& cashier);
  /// Types a code.
  void type(const std::string& code);
  /// Writes a text as an input method does.
  void compose(const QString& text);
  /// What a key press took until the list had been painted with the new row.
  struct Rung {
    double microseconds;
    Syncs syncs;
  };
  /// Presses Enter and waits until everything has been painted.
  Rung ring();
  /// Opens the settlement and confirms the amount due once the dialog has been painted; ends when
  /// the next bill has been painted. `confirming` is called right before that confirmation.
  void settle(const std::function<void()>& confirming = {});
  /// Presses Enter on a code that many goods have, calls `painted` when their menu has been
  /// painted, and chooses the first.
  void ringFromMenu(const std::function<void()>& painted);

 private:
  void throughWindow(const QString& name, const std::function<void()>& painted);

  std::unique_ptr<posMod> pos_;
  QuietCheckpoint checkpoint_;
  std::unique_ptr<frmSell> window_;
  PaintWatch paint_;
};
