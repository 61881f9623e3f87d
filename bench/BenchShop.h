#pragma once

#include <memory>
#include <string>

#include "app/posMod.h"
#include "checkout/SaleScreen.h"
#include "sale/SaleSession.h"

/// A till without a window on a shop of its own: what the cashier's key presses cause, and nothing
/// of what the screen draws.
class BenchShop : public SaleScreen {
 public:
  /// Makes a data file with `goods` items in that folder and opens the sale screen's session.
  BenchShop(const std::filesystem::path& folder, int goods);

  /// Types a code and presses Enter.
  void enter(const std::string& code);
  /// Presses the settle key; payment is confirmed with the amount due in cash.
  void settle();

  static std::string barcode(int item);
  static std::string itemCode(int item);
  /// Makes the data file alone.
  static void makeDataFile(const std::filesystem::path& file, int goods);

 private:
  void rowsChanged() override {}
  void PlaceEditor() override {}
  QString input() const override { return input_; }
  void setInput(const QString& text) override { input_ = text; }
  void setTitle1(const QString&) override {}
  void setTitle3(const QString&) override {}
  void setStatus(const QString&) override {}
  void setMemberInfo(const QString&) override {}
  void ShowMessage(const QString& text) override;
  void messageBox(const QString& text, const QString& title) override;
  bool askYesNo(const QString&, const QString&, bool yesPreselected) override {
    return yesPreselected;
  }
  QString prompt(const QString&, const QString&) override { return {}; }
  int choose(const QStringList&) override { return 0; }
  std::int32_t chooseHeldBill(const std::vector<std::shared_ptr<ClsSell>>&) override { return 0; }
  bool settle(Settlement& settlement) override;
  void endProgram() override;

  QString input_;
  std::unique_ptr<posMod> pos_;
  std::unique_ptr<SaleSession> session_;
};
