#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

#include "checkout/Messages.h"

class ClsSell;
class Settlement;
struct SalePicture;

/// The screen of a sale: it shows one picture, and asks the cashier. The sale window implements it;
/// a test can.
class SaleScreen : public Messages {
 public:
  /// Shows the sale as it is now. Whoever asks or says something in the midst of a step shows the
  /// sale first; the end of a key press is shown by the session.
  virtual void show(const SalePicture& picture) = 0;

  /// Asks for one text (frmInput); empty after Esc.
  [[nodiscard]] virtual QString prompt(const QString& title, const QString& message) = 0;
  /// A popup menu of `count` entries; the position chosen, or nothing chosen: -1. A caption may be
  /// asked for late, when its entry comes into view; asking must not throw.
  [[nodiscard]] virtual int choose(int count,
                                   const std::function<QString(int position)>& caption) = 0;
  /// Shows the bills put aside; the number of the one to be taken up again, 0 for none.
  [[nodiscard]] virtual std::int32_t chooseHeldBill(
      const std::vector<std::shared_ptr<ClsSell>>& bills) = 0;
  /// Runs the settlement dialog; true when payment was confirmed.
  [[nodiscard]] virtual bool settle(Settlement& settlement) = 0;

  /// Ends the whole program at once; a caller returns straight after it.
  virtual void endProgram() = 0;
};
